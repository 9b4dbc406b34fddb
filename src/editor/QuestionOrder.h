// SPDX-License-Identifier: MIT
#pragma once

#include "editor/AttachmentEditor.h"
#include "editor/ChangeName.h"
#include "editor/EditedExam.h"
#include "editor/EditorState.h"
#include "editor/QuestionEditor.h"
#include "editor/SlotOrder.h"
#include "editor/WholeQuestion.h"
#include "platform/StringTable.h"

#include <string>
#include <vector>

namespace quorvantis {

/// Why a command of QuestionOrder was refused.
enum class OrderProblem {
  None,
  NoSuchQuestion,  ///< a number is below 1 or above that of the last question
  BeyondEnd,       ///< a question would get a number above that of the last one
  NoRoom,          ///< a question would get a number above 500
  FileNotCopied,   ///< an attached file is missing, or there is no space for its copy
};

/// The result of a command of QuestionOrder.
struct OrderOutcome {
  OrderProblem problem = OrderProblem::None;
  int number = 0;                   ///< NoSuchQuestion: the number; NoRoom: how many questions would fit
  int last = 0;                     ///< NoSuchQuestion and BeyondEnd: the number of the last question
  std::u16string file = {};         ///< FileNotCopied: its display name
  std::vector<int> questions = {};  ///< the present numbers of the questions that were moved or inserted
  SlotOrder order = {};  ///< where each question comes from; an inserted one comes from an empty slot

  bool IsDone() const { return problem == OrderProblem::None; }
};

/// What to tell the user about a problem.
std::u16string OrderProblemText(const OrderOutcome& outcome, const StringTable& strings);

/// Moves, duplicates, deletes and inserts whole questions: with their texts, ticks, attached files, oral flag
/// and long-answer flag. Unlike with Insert and Delete of the window, nothing stays behind in a slot. The
/// score ranges stay where they are. Each command first stores the form. Afterwards the question that was
/// shown is shown under its new number, or the first inserted one, or the one that took the place of a
/// deleted one. A command that is refused changes nothing, not even the form.
///
/// Lists of numbers are ascending and without repetitions. The last question of an exam is the last one with
/// any content, counting what is typed but not stored.
class QuestionOrder {
 public:
  /// All must outlive this object.
  QuestionOrder(EditorState& state, EditedExam& exam, AttachmentEditor& attachments,
                QuestionEditor& questions)
      : state_(state), exam_(exam), attachments_(attachments), questions_(questions) {}

  /// What becomes of attached files whose content is missing when their question is inserted.
  enum class MissingFiles {
    AreRefused,
    StayMissing,  ///< so that the next save reports them like those of the original
  };

  /// The number of the last question; 0 in an empty exam.
  int LastQuestion() const;
  /// How many questions can be inserted after question `after`, 0 to 500.
  int RoomAfter(int after) const;

  /// The question gets number `to`; those in between move by one.
  OrderOutcome Move(int from, int to) { return MoveMany({from}, to); }
  /// The questions stand together from number `to` on.
  OrderOutcome MoveMany(const std::vector<int>& numbers, int to);

  /// Copies of the questions, with work copies of their own, come after the last of them.
  OrderOutcome Duplicate(const std::vector<int>& numbers);

  OrderOutcome DeleteMany(const std::vector<int>& numbers);

  /// The questions come after question `after`, 0 to 500. Their attached files are copied. `how` names the
  /// step for the history.
  OrderOutcome InsertWhole(std::vector<WholeQuestion> inserted, int after,
                           ChangeKind how = ChangeKind::PasteQuestion);

  /// The questions as they would be after storing; the exam does not change. Numbers are 1 to 500.
  std::vector<WholeQuestion> Copies(const std::vector<int>& numbers) const;

 private:
  OrderOutcome Insert(std::vector<WholeQuestion> inserted, int after, MissingFiles missing, ChangeKind how);
  OrderOutcome CheckNumbers(const std::vector<int>& numbers) const;
  /// Puts the questions in the order and shows question `shown`.
  void Arrange(const SlotOrder& order, int shown);

  EditorState& state_;
  EditedExam& exam_;
  AttachmentEditor& attachments_;
  QuestionEditor& questions_;
};

}  // namespace quorvantis

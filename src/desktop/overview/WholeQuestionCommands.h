// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/overview/QuestionClipboard.h"
#include "editor/ExamEditor.h"

#include <QWidget>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quorvantis {

/// The commands of the windows for whole questions. Each is one command of the editor; problems are shown to
/// the user. Lists of numbers are ascending. The results are for a status line: what was done, and which
/// questions have another score since; empty if nothing was done.
class WholeQuestionCommands {
 public:
  /// `editor` must outlive this.
  explicit WholeQuestionCommands(ExamEditor& editor);

  /// Numbers of the questions that the last command has moved or inserted, or of the one in the place of
  /// those that it has deleted.
  const std::vector<int>& Changed() const { return changed_; }

  QString MoveTo(const std::vector<int>& numbers, int to);
  /// Asks for the number.
  QString AskAndMove(const std::vector<int>& numbers, QWidget* parent);
  QString Duplicate(const std::vector<int>& numbers);
  QString Delete(const std::vector<int>& numbers);
  QString Copy(const std::vector<int>& numbers);
  QString Cut(const std::vector<int>& numbers);
  /// After the question that is shown.
  QString Paste();
  /// Asks for an exam file and for questions in it; they come after the question that is shown.
  QString InsertFromExam(QWidget* parent);
  /// Questions that were taken from other exams, after question `after`, 0 to 500, or after the question that
  /// is shown.
  QString InsertTaken(std::vector<WholeQuestion> questions, std::optional<int> after) {
    return Insert(std::move(questions), after.value_or(PlaceToInsert()), ChangeKind::TakeQuestion);
  }
  /// Drawn ones, after the question that is shown.
  QString InsertDrawn(std::vector<WholeQuestion> questions) {
    return Insert(std::move(questions), PlaceToInsert(), ChangeKind::DrawQuestion);
  }

  bool CanPaste() const { return clipboard_.HasQuestions(); }
  int LastQuestion() const { return editor_.order.LastQuestion(); }

 private:
  QString Report(const OrderOutcome& outcome, int text, std::size_t count);
  QString ScoresAfter(const OrderOutcome& outcome) const;
  QString Insert(std::vector<WholeQuestion> questions, int after, ChangeKind how);
  /// An exam without questions gets them at its beginning, not after the empty question that is shown.
  int PlaceToInsert() const;
  QString Refuse(std::u16string_view problem) const;
  const ExamServices& Services() const { return editor_.state.document.Services(); }
  std::u16string Text(int id) const;

  ExamEditor& editor_;
  QuestionClipboard clipboard_;
  std::vector<int> changed_;
};

}  // namespace quorvantis

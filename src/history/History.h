// SPDX-License-Identifier: MIT
#pragma once

#include "editor/ChangeName.h"
#include "editor/ExamEditor.h"
#include "history/ExamDifference.h"
#include "history/ExamMoment.h"
#include "history/KeptFiles.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <filesystem>
#include <optional>
#include <vector>

namespace quorvantis {

/// Where the user should look after an undo or a redo. The question is shown already.
struct HistorySpot {
  std::optional<FormField> field;                ///< if a text has changed
  std::size_t position = 0;                      ///< in that text, in UTF-16 units: where the change ends
  std::vector<std::filesystem::path> lostFiles;  ///< work copies that could not be put back
};

/// All changes of the exam in an editor since it was opened or begun, as steps to undo and redo. Nobody
/// reports changes: the history looks at the exam after each command and keeps what differs, so it misses
/// none. Walking through the questions and saving are no steps. Undo and redo are changes like any other:
/// they mark the exam as modified.
class History {
 public:
  using Clock = std::chrono::steady_clock;

  static constexpr std::size_t kDefaultLimit = std::size_t{64} * 1024 * 1024;
  /// A longer pause ends a step of typing.
  static constexpr auto kTypingPause = std::chrono::seconds(1);

  /// The editor must outlive the history. More than `limit` bytes of steps are not kept: the oldest go first,
  /// but the last step always stays.
  explicit History(ExamEditor& editor, std::size_t limit = kDefaultLimit);

  /// As long as one exists, looks do nothing: the command that holds it shows windows while it is at work.
  class Hold {
   public:
    explicit Hold(History& history) : history_(history) { ++history_.holds_; }
    ~Hold() { --history_.holds_; }
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

   private:
    History& history_;
  };

  /// Forgets all steps: the exam begins as it is now.
  void Begin();

  /// Call after every command. A new exam begins a new history.
  void Look(Clock::time_point now = Clock::now());

  /// What the user types next is a step of its own.
  void EndTyping() { isTyping_ = false; }

  /// What the next Undo takes back or the next Redo repeats; nothing if there is no such step. As of the last
  /// look.
  std::optional<ChangeName> NextUndo() const;
  std::optional<ChangeName> NextRedo() const;
  /// Older steps had to be given up.
  bool HasForgotten() const { return hasForgotten_; }

  /// Nothing if there is nothing to undo or redo.
  std::optional<HistorySpot> Undo();
  std::optional<HistorySpot> Redo();

  /// Numbers the steps: that of the one that the next Undo takes back, 0 if there is none. As of the last
  /// look.
  std::uint64_t LastStep() const { return done_ > 0 ? steps_[done_ - 1].number : 0; }
  /// Whether the step of this number can be undone, after all later ones.
  bool CanUndo(std::uint64_t step) const;
  /// Undoes the step of this number and all later ones; nothing if it cannot be undone.
  std::optional<HistorySpot> UndoBackTo(std::uint64_t step);

  /// The exam as it was at the last look, with the form stored.
  FrameSetExam LastLook() const;
  /// Takes back what has happened since the last look; the files of the exam, too. Whether the exam counts as
  /// modified does not change.
  void Revert();

  /// Memory that the steps use, in bytes, about.
  std::size_t Size() const { return size_; }

 private:
  struct Step {
    ChangeName name;
    ExamDifference change;
    std::vector<FileChange> files;
    std::vector<ExamDifference> walk;  ///< what was shown and stored after it, before the next step
    std::size_t size = 0;
    std::uint64_t number = 0;
  };

  void AddWalk(ExamDifference walk);
  void AddStep(Step step);
  bool JoinTyping(const Step& step, const std::optional<FieldPlace>& cursor, Clock::time_point now);
  void NoteTyping(const Step& step, Clock::time_point now);
  void Measure(Step& step);
  void GiveUpOldest();
  void TakeBack(Step& step);
  HistorySpot Show(Step& step, Direction direction);
  FrameSetExam DocumentOf(const ExamMoment& moment) const;
  void PutIntoEditor(bool withOrigin);
  void NoteShown();

  ExamEditor& editor_;
  std::size_t limit_;
  KeptFiles files_;
  ExamMoment moment_;  ///< at the last look
  int examsBegun_ = 0;
  std::deque<Step> steps_;
  std::size_t done_ = 0;              ///< steps that are not undone
  bool walkedOn_ = true;              ///< the walk of the last step that is not undone has been taken
  std::vector<ExamDifference> walk_;  ///< since the last step, undo or redo
  std::size_t size_ = 0;
  std::uint64_t lastNumber_ = 0;
  bool hasForgotten_ = false;
  int holds_ = 0;
  bool isTyping_ = false;
  Clock::time_point typed_;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "learn/StudyOutcome.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace quorvantis {

/// What a teacher has said of a paper: marks, or rules of their own.
struct StudyState {
  std::vector<PaperMark> marks{};
  std::optional<ImportSettings> ownRules{};  ///< then the marks are not used
  int number = 0;                            ///< tells it from all others of its study
};

/// One paper being studied: its marks, with undo, the rules worked out from them or written by hand, and what
/// these make of the paper. What a window or a command line shows is taken from here.
class PaperStudy {
 public:
  /// `isCancelled`, which may be empty, is polled while rules are worked out and tried.
  explicit PaperStudy(Paper paper, CancelHook isCancelled = {});

  /// Works out the rules anew from all marks. False if that was cancelled; then everything stays.
  bool Learn();

  /// Takes rules written by hand and reads the paper by them; they stay until the next Learn or mark.
  void SetRules(ImportSettings rules);
  bool HasOwnRules() const { return State().ownRules.has_value(); }

  /// For those who work out an outcome themselves, on another thread: notes the rules without reading the
  /// paper by them, and takes what was made of the present state. With `goesOn` the rules are the same step
  /// for Undo as those noted before, else they are one of their own.
  void NoteRules(ImportSettings rules, bool goesOn = false);
  void Take(StudyOutcome outcome);
  /// Back to the state whose outcome was taken last: what has led away from it was cancelled.
  void ReturnToTaken();

  /// A mark replaces those it overlaps. Neither learns by itself. Rules written by hand are left with the
  /// state before, to which Undo leads back.
  void AddMark(PaperMark mark);
  void RemoveMark(std::size_t index);

  bool CanUndo() const { return place_ > 0; }
  bool CanRedo() const { return place_ + 1 < states_.size(); }
  void Undo();
  void Redo();

  const Paper& StudiedPaper() const { return *paper_; }
  /// The same for those who may need it longer. It never changes.
  const std::shared_ptr<const Paper>& SharedPaper() const { return paper_; }
  const StudyState& State() const { return states_[place_]; }
  const std::vector<PaperMark>& Marks() const { return State().marks; }
  const StudyOutcome& Outcome() const { return now_; }
  const LearnedRules& Learned() const { return now_.learned; }
  const ImportSettings& Rules() const { return now_.learned.rules; }
  const PaperReading& Reading() const { return now_.reading; }
  const std::vector<RolePart>& Roles() const { return now_.roles; }
  const std::vector<ReadingWarning>& Warnings() const { return now_.warnings; }
  double Explained() const { return ExplainedShare(*paper_, now_.roles); }

 private:
  void Push(std::vector<PaperMark> marks, std::optional<ImportSettings> ownRules = {});

  std::shared_ptr<const Paper> paper_;
  CancelHook isCancelled_;
  std::vector<StudyState> states_{1};  ///< the first without any mark
  std::size_t place_ = 0;              ///< the present one
  StudyOutcome now_;
  StudyState taken_;  ///< whose outcome that is
  int numbers_ = 0;   ///< of states
};

}  // namespace quorvantis

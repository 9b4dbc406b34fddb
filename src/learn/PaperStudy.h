// SPDX-License-Identifier: MIT
#pragma once

#include "learn/PaperLearner.h"
#include "learn/ReadingRoles.h"
#include "learn/ReadingWarnings.h"

#include <cstddef>
#include <vector>

namespace quorvantis {

/// One paper being studied: its marks, with undo, the rules worked out from them or written by hand, and what
/// these make of the paper. What a window or a command line shows is taken from here.
class PaperStudy {
 public:
  /// `isCancelled`, which may be empty, is polled while rules are worked out and tried.
  explicit PaperStudy(Paper paper, CancelHook isCancelled = {});

  /// Works out the rules anew from all marks. False if that was cancelled; then everything stays.
  bool Learn();

  /// Takes rules written by hand and reads the paper by them; they stay until the next Learn.
  void SetRules(ImportSettings rules);
  bool HasOwnRules() const { return hasOwnRules_; }

  /// A mark replaces those it overlaps. Neither learns by itself.
  void AddMark(PaperMark mark);
  void RemoveMark(std::size_t index);

  bool CanUndo() const { return place_ > 0; }
  bool CanRedo() const { return place_ + 1 < states_.size(); }
  void Undo();
  void Redo();

  const Paper& StudiedPaper() const { return paper_; }
  const std::vector<PaperMark>& Marks() const { return states_[place_]; }
  const LearnedRules& Learned() const { return learned_; }
  const ImportSettings& Rules() const { return learned_.rules; }
  const PaperReading& Reading() const { return reading_; }
  const std::vector<RolePart>& Roles() const { return roles_; }
  const std::vector<ReadingWarning>& Warnings() const { return warnings_; }
  double Explained() const { return ExplainedShare(paper_, roles_); }

 private:
  void Read();
  void Push(std::vector<PaperMark> marks);

  Paper paper_;
  CancelHook isCancelled_;
  std::vector<std::vector<PaperMark>> states_{1};  ///< of the marks, the first without any
  std::size_t place_ = 0;                          ///< the present one
  LearnedRules learned_;
  bool hasOwnRules_ = false;
  PaperReading reading_;
  std::vector<RolePart> roles_;
  std::vector<ReadingWarning> warnings_;
};

}  // namespace quorvantis

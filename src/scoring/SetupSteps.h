// SPDX-License-Identifier: MIT
#pragma once

#include "scoring/ScoreSetup.h"

#include <utility>
#include <vector>

namespace quorvantis {

/// The changes of a score setup while its dialog is open, as steps to undo and redo. What the dialog has done
/// to the exam is one step of the exam's own history.
class SetupSteps {
 public:
  /// `setup` must outlive this. The first step begins as it is now.
  explicit SetupSteps(ScoreSetup& setup) : setup_(setup), last_(setup) {}

  /// Call after every change of a field.
  void Look() {
    if (setup_.Fields() == last_.Fields()) return;
    undo_.push_back(std::exchange(last_, setup_));
    redo_.clear();
  }

  /// False if there is nothing to undo or redo.
  bool Undo() { return Take(undo_, redo_); }
  bool Redo() { return Take(redo_, undo_); }

 private:
  bool Take(std::vector<ScoreSetup>& from, std::vector<ScoreSetup>& to) {
    if (from.empty()) return false;
    to.push_back(std::exchange(last_, std::move(from.back())));
    from.pop_back();
    setup_ = last_;
    return true;
  }

  ScoreSetup& setup_;
  ScoreSetup last_;
  std::vector<ScoreSetup> undo_;
  std::vector<ScoreSetup> redo_;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "editor/ExamEditor.h"
#include "scoring/ScoreSetup.h"

namespace quorvantis {

/// The Score settings command: lets the user edit the score distribution of the exam, and applies it on OK.
class ScoreSetupCommand {
 public:
  /// `editor` must outlive the command.
  ScoreSetupCommand(ExamEditor& editor, EditScoreSetup edit) : editor_(editor), edit_(std::move(edit)) {}

  /// True if the distribution was applied.
  bool Run();

 private:
  ExamEditor& editor_;
  EditScoreSetup edit_;
};

}  // namespace quorvantis

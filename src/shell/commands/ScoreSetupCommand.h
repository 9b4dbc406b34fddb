// SPDX-License-Identifier: MIT
#pragma once

#include "editor/ExamEditor.h"
#include "scoring/ScoreSetup.h"

namespace quorvantis {

/// The Score settings command: has the score distribution of the exam edited, and takes it over on OK.
class ScoreSetupCommand {
 public:
  /// `editor` must outlive the command.
  ScoreSetupCommand(ExamEditor& editor, EditScoreSetup edit) : editor_(editor), edit_(std::move(edit)) {}

  /// True when the distribution was taken over.
  bool Run();

 private:
  ExamEditor& editor_;
  EditScoreSetup edit_;
};

}  // namespace quorvantis

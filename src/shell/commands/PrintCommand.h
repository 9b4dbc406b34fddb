// SPDX-License-Identifier: MIT
#pragma once

#include "shell/commands/PreviewCommand.h"

namespace quorvantis {

/// The Print command: writes the exam as a paper, shows it off-screen and prints it.
class PrintCommand {
 public:
  /// `editor` must outlive the command.
  PrintCommand(ExamEditor& editor, ShowPage show) : editor_(editor), show_(std::move(show)) {}

  void Run();

 private:
  ExamEditor& editor_;
  ShowPage show_;
};

}  // namespace quorvantis

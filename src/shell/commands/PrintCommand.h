// SPDX-License-Identifier: MIT
#pragma once

#include "editor/QuestionEditor.h"
#include "model/FrameSetExam.h"
#include "shell/commands/PreviewCommand.h"

namespace quorvantis {

/// The Print command: writes the exam as a paper, shows it off-screen and prints it.
class PrintCommand {
 public:
  /// All must outlive the command.
  PrintCommand(QuestionEditor& questions, FrameSetExam& exam, ShowPage show)
      : questions_(questions), exam_(exam), show_(std::move(show)) {}

  void Run();

 private:
  QuestionEditor& questions_;
  FrameSetExam& exam_;
  ShowPage show_;
};

}  // namespace quorvantis

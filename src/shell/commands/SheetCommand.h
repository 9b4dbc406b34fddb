// SPDX-License-Identifier: MIT
#pragma once

#include "render/sheets/SheetRequest.h"
#include "shell/commands/PreviewCommand.h"

namespace quorvantis {

/// Composes a sheet of the exam as it is in the editor, and shows it.
class SheetCommand {
 public:
  /// `editor` must outlive the command.
  SheetCommand(ExamEditor& editor, SheetRequest request, ShowPage show)
      : editor_(editor), request_(std::move(request)), show_(std::move(show)) {}

  void Run();

 private:
  ExamEditor& editor_;
  const SheetRequest request_;
  const ShowPage show_;
};

}  // namespace quorvantis

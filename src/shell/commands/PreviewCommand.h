// SPDX-License-Identifier: MIT
#pragma once

#include "editor/ExamEditor.h"
#include "model/document/FrameSetExam.h"
#include "shell/office/OfficeControl.h"

#include <filesystem>
#include <functional>

namespace quorvantis {

/// Shows a page that a command has written to this file.
using ShowPage = std::function<void(const std::filesystem::path& page)>;

/// The Preview command: writes the exam as it would be taken, and shows the first page.
class PreviewCommand {
 public:
  /// Both must outlive the command; `office` may be null. `languageId` is that of the wanted language, which
  /// may differ from the one in use.
  PreviewCommand(ExamEditor& editor, OfficeControl* office, int languageId, ShowPage show)
      : editor_(editor), office_(office), languageId_(languageId), show_(std::move(show)) {}

  /// From now on, attachment paths have one more prefix on pages, until the exam is finished (see
  /// FrameSetExam::PrefixAttachmentPaths).
  void Run();

 private:
  ExamEditor& editor_;
  OfficeControl* office_;
  int languageId_;
  ShowPage show_;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/FrameSetExam.h"
#include "platform/WordWriter.h"
#include "shell/office/OfficeControl.h"

#include <filesystem>
#include <optional>
#include <string>

namespace quorvantis {

/// Writes the exam as a word-processor document: the questions that its file would have.
class ExportCommand {
 public:
  /// All must outlive the command; `office` may be null.
  ExportCommand(const FrameSetExam& exam, WordWriter& writer, OfficeControl* office)
      : exam_(exam), writer_(writer), office_(office) {}

  /// What Save As does with the name of a document. Tells the user the result.
  void ExportWordDocument(const std::filesystem::path& target);

  /// Silent. Returns nothing on success, otherwise the reason, in one line for the user.
  std::optional<std::u16string> Write(const std::filesystem::path& target, WordFormat format);

 private:
  std::u16string FailureText(const WordWriteOutcome& outcome, const std::filesystem::path& target) const;

  const FrameSetExam& exam_;
  WordWriter& writer_;
  OfficeControl* office_;
};

}  // namespace quorvantis

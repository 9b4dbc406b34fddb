// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PaperPrinter.h"

#include <filesystem>

namespace quorvantis {

/// Makes PDF files by the program "quorvantis-pdf", which holds the browser: so a program that starts it
/// needs none and starts fast. It works in a private folder and ends with this one. All jobs of one call are
/// done by one start of it, which converts each attached document once.
class PdfProgram : public PaperPrinter {
 public:
  /// `program` is the full path; empty if it is not installed. `languageId` is that of the texts on the
  /// pages, 0 for the built-in ones. `applicationFolder` may have languages of its own; empty if there is
  /// none.
  PdfProgram(std::filesystem::path program, int languageId, std::filesystem::path applicationFolder = {})
      : program_(std::move(program)),
        languageId_(languageId),
        applicationFolder_(std::move(applicationFolder)) {}

  /// Beside the running program; empty if it is not there.
  static std::filesystem::path Find();

  std::optional<std::string> Print(std::span<const PaperJob> jobs, Progress& progress) override;
  bool IsInstalled() const override { return !program_.empty(); }
  std::optional<int> PageCount(const std::filesystem::path& pdf) override;

 private:
  std::optional<std::string> PrintIn(const std::filesystem::path& folder, std::span<const PaperJob> jobs,
                                     Progress& progress) const;

  const std::filesystem::path program_;
  const int languageId_;
  const std::filesystem::path applicationFolder_;
};

}  // namespace quorvantis

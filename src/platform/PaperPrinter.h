// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Progress.h"
#include "platform/Sheet.h"

#include <filesystem>
#include <optional>
#include <span>
#include <string>

namespace quorvantis {

/// One PDF file to make.
struct PaperJob {
  std::filesystem::path exam;    ///< an exam file
  std::filesystem::path target;  ///< replaced once the new file is complete
  Sheet sheet = Sheet::Paper;
  std::u16string version{};  ///< see SheetHead; plain texts
  std::u16string code{};
  bool largePrint = false;
  /// Blank pages are added until it has as many as the longest of the jobs so marked.
  bool isFilledUp = false;
};

/// Makes PDF files of exams without a window.
class PaperPrinter {
 public:
  virtual ~PaperPrinter() = default;

  /// Does the jobs in their order, and none after one that fails or after the user has cancelled. Returns why
  /// not all were done, in English; nothing when all were. Files of earlier jobs stay.
  virtual std::optional<std::string> Print(std::span<const PaperJob> jobs, Progress& progress) = 0;

  /// False if this machine has nothing to print with, so that every print fails.
  virtual bool IsInstalled() const = 0;

  /// The number of pages of a PDF file; nothing if it cannot be read.
  virtual std::optional<int> PageCount(const std::filesystem::path& pdf) = 0;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "platform/WordDocuments.h"
#include "platform/programs/TimeLimits.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace quorvantis {

/// The installed programs that the document reader uses, by full path; the path is empty if one is not
/// installed.
struct OfficePrograms {
  std::filesystem::path office;     ///< soffice of LibreOffice
  std::filesystem::path pdfImages;  ///< pdftoppm of poppler
  std::chrono::milliseconds limit = kLongestDocument;

  static OfficePrograms Find();
};

/// A conversion by LibreOffice.
struct OfficeJob {
  std::filesystem::path input;       ///< in a folder of its own, with a plain name
  std::vector<std::string> filters;  ///< import filters, tried in this order
  std::string format;                ///< extension of the output file
  std::string exportFilter{};        ///< if empty, the usual one for that extension
};

/// Runs LibreOffice to convert files, each time with a fresh profile that forbids macros and network access.
class OfficeConverter {
 public:
  OfficeConverter(OfficePrograms programs, std::function<bool()> isCancelled);

  /// Writes the output next to the input, under the same name with the other extension.
  WordResult Convert(const OfficeJob& job) const;

  /// Draws the pages of a PDF file at this many pixels per inch, as "page-1.png" and so on next to it.
  WordResult DrawPages(const std::filesystem::path& pdf, int dotsPerInch) const;

 private:
  WordResult Run(const std::filesystem::path& program, std::vector<std::string> arguments,
                 const std::filesystem::path& temporaryFolder) const;

  OfficePrograms programs_;
  std::function<bool()> isCancelled_;
};

}  // namespace quorvantis

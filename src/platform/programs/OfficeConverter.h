// SPDX-License-Identifier: MIT
#pragma once

#include "platform/WordDocuments.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace quorvantis {

/// The programs of the machine that the reader of documents uses, by full path; an empty one is not
/// installed.
struct OfficePrograms {
  std::filesystem::path office;     ///< soffice of LibreOffice
  std::filesystem::path pdfImages;  ///< pdftoppm of poppler
  std::chrono::milliseconds limit{60'000};

  static OfficePrograms Find();
};

/// What LibreOffice is to make of a file.
struct OfficeJob {
  std::filesystem::path input;       ///< lies in a folder of its own, under a plain name
  std::vector<std::string> filters;  ///< import filters to try, in this order
  std::string format;                ///< extension of the result
  std::string exportFilter{};        ///< the usual one for that extension when empty
};

/// The pages that poppler has drawn into `folder`, in their order: it pads the numbers in the names to one
/// width.
std::vector<std::filesystem::path> DrawnPages(const std::filesystem::path& folder);

/// Has LibreOffice convert files, each run with a fresh profile under which documents can do nothing.
class OfficeConverter {
 public:
  OfficeConverter(OfficePrograms programs, std::function<bool()> isCancelled);

  /// Writes the result beside the input, under its name with the other extension.
  WordResult Convert(const OfficeJob& job) const;

  /// Draws the pages of a PDF file of these pixels per inch as "page-1.png" and so on beside it.
  WordResult DrawPages(const std::filesystem::path& pdf, int dotsPerInch) const;

 private:
  WordResult Run(const std::filesystem::path& program, std::vector<std::string> arguments,
                 const std::filesystem::path& temporaryFolder) const;

  OfficePrograms programs_;
  std::function<bool()> isCancelled_;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace quorvantis {

/// The text of one PDF file, or why there is none, in English.
struct PdfPages {
  std::vector<std::u16string> pages;
  std::optional<std::string> problem{};
};

/// Reads the text of PDF files.
class PdfText {
 public:
  virtual ~PdfText() = default;

  /// The text of each page in the order in which it was put there, so the foot of the page is last. Lines end
  /// with LF and have no marks of direction. Words that run from right to left are put into their order line
  /// by line, as far as it can be told. Compare by `ComparableText` (text/): the two letters of an Arabic
  /// ligature may have changed places.
  virtual PdfPages Read(const std::filesystem::path& pdf) = 0;
};

}  // namespace quorvantis

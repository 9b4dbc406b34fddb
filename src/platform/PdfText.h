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

  /// The text of each page in the order in which it was put there, lines separated by LF, without the marks
  /// of writing direction. Within a line from right to left, words and numbers may have changed places, and
  /// so may the two letters of an Arabic ligature: compare as `ComparableText` (text/) does.
  virtual PdfPages Read(const std::filesystem::path& pdf) = 0;
};

}  // namespace quorvantis

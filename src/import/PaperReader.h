// SPDX-License-Identifier: MIT
#pragma once

#include "import/TextMarking.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace quorvantis {

/// What a document holds: in the text, pictures are " <number>.bmp " and formulas "##".
struct PaperContent {
  std::u16string text;  ///< without the tables
  std::vector<PaperTable> tables;
  int nextPicture = 0;  ///< the number after that of the last picture
  bool hasFormulas = false;
};

/// The content, or why there is none, as one line for the user.
struct PaperOutcome {
  std::optional<PaperContent> content;
  std::u16string error;
};

/// Reads documents of some kind. The document itself stays as it is.
class PaperReader {
 public:
  virtual ~PaperReader() = default;

  /// Pictures are numbered from `firstPicture` on.
  virtual PaperOutcome Read(const std::filesystem::path& document, int firstPicture) = 0;
};

}  // namespace quorvantis

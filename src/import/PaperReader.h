// SPDX-License-Identifier: MIT
#pragma once

#include "import/TextMarking.h"
#include "platform/WordReader.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quorvantis {

/// A picture that has no file, and why.
struct LostPicture {
  int number = 0;
  WordResult reason = WordResult::Damaged;
};

/// What a document holds: in the text, pictures are " <number>.bmp " and formulas "##".
struct PaperContent {
  std::u16string text;  ///< without the tables
  std::vector<PaperTable> tables;
  int nextPicture = 0;  ///< the number after that of the last picture
  std::size_t formulas = 0;
  std::vector<LostPicture> lostPictures;
};

/// How to read a document.
struct PaperReading {
  int firstPicture = 1;     ///< the number of the first picture; the others follow
  bool listLabels = false;  ///< whether automatic numbers are part of the text
  CancelHook isCancelled;   ///< true ends the reading; may be empty
  std::function<void(std::size_t done, std::size_t total)> pictureSaved;  ///< may be empty
};

/// The content if, and only if, the result is `Done`.
struct PaperOutcome {
  WordResult result = WordResult::Done;
  std::optional<PaperContent> content;
};

/// Reads documents of some kind. The document itself stays as it is.
class PaperReader {
 public:
  virtual ~PaperReader() = default;

  virtual PaperOutcome Read(const std::filesystem::path& document, const PaperReading& reading) = 0;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PixelGrid.h"
#include "platform/WordContent.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>

namespace quorvantis {

/// The result of reading a document or one of its pictures.
enum class WordResult {
  Done,
  NotFound,       ///< no such file; of a picture: the document only refers to it, or draws it from data
  CannotAccess,   ///< not a regular file, or no permission to read or write it
  UnknownFormat,  ///< not a word-processor document, or not a picture of a known kind
  Damaged,        ///< begins like one, but cannot be read
  PasswordProtected,
  TooLarge,              ///< beyond the limits: size, pixels
  TooDeep,               ///< tables or other parts are nested too deeply
  WordProcessorMissing,  ///< the word processor that this kind needs is not installed or cannot be started
  TimedOut,              ///< the word processor took too long and was stopped
  Cancelled,
};

struct WordReadOptions {
  bool listLabels = false;            ///< whether automatic numbers are part of the text
  std::function<bool()> isCancelled;  ///< asked several times a second while the word
                                      ///< processor runs, also for pictures later
};

/// The pictures of a document that has been read. The document's file may be gone by now, but must not have
/// changed. Temporary files made for reading are removed with this object.
class WordPictures {
 public:
  virtual ~WordPictures() = default;

  /// The pixels of a picture (`WordObject::picture`). Some kinds of pictures need the word processor.
  virtual WordResult Read(std::size_t picture, PixelGrid& pixels) = 0;
};

/// Unless the result is `Done`, the document is empty. `pictures` is null where a document has none.
struct WordReadOutcome {
  WordResult result = WordResult::Done;
  WordContent document{};
  std::unique_ptr<WordPictures> pictures{};
};

/// Reads word-processor documents. Their files are never changed.
class WordDocuments {
 public:
  virtual ~WordDocuments() = default;

  virtual WordReadOutcome Open(const std::filesystem::path& file, const WordReadOptions& options) = 0;
};

}  // namespace quorvantis

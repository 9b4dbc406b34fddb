// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PixelGrid.h"
#include "platform/WordDocument.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>

namespace quorvantis {

/// How the reading of a document, or of one of its pictures, ended.
enum class WordResult {
  Done,
  NotFound,       ///< no such file; of a picture: the document only refers to it, or draws it from data
  CannotAccess,   ///< no regular file, or one that must not be read or written
  UnknownFormat,  ///< no word processor's document, no picture of a known kind
  Damaged,        ///< begins like one, but cannot be read
  PasswordProtected,
  TooLarge,              ///< beyond what is read: size, pixels
  TooDeep,               ///< tables or other parts stand within each other more often than is read
  WordProcessorMissing,  ///< the word processor that this kind needs is not installed or cannot be started
  TimedOut,              ///< the word processor took too long and was ended
  Cancelled,
};

struct WordReadOptions {
  bool listLabels = false;            ///< whether automatic numbers are part of the text
  std::function<bool()> isCancelled;  ///< asked several times a second while the word
                                      ///< processor runs, also for pictures later
};

/// The pictures of a document that has been read. The document's file is no longer needed to be there, but
/// should not change. What had to be made of it for reading goes with this object.
class WordPictures {
 public:
  virtual ~WordPictures() = default;

  /// The pixels of a picture (`WordObject::picture`). Some kinds of pictures need the word processor.
  virtual WordResult Read(std::size_t picture, PixelGrid& pixels) = 0;
};

/// Without the result `Done`, the document is empty. `pictures` is null where a document has none.
struct WordReadOutcome {
  WordResult result = WordResult::Done;
  WordDocument document{};
  std::unique_ptr<WordPictures> pictures{};
};

/// Reads the documents of word processors. The document's file is never changed.
class WordDocuments {
 public:
  virtual ~WordDocuments() = default;

  virtual WordReadOutcome Open(const std::filesystem::path& file, const WordReadOptions& options) = 0;
};

}  // namespace quorvantis

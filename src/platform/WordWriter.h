// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <system_error>
#include <vector>

namespace quorvantis {

/// Doc is the format of Word 97.
enum class WordFormat { Doc, Docx, Pdf };

/// The result of writing a document.
enum class WordWriteResult {
  Done,
  WordProcessorMissing,  ///< not installed, or it cannot be started
  WordProcessorFailed,   ///< it produced no document
  TimedOut,              ///< it took too long and was stopped
  Cancelled,
  CannotWrite,  ///< a file, the target or a temporary one
};

struct WordWriteOutcome {
  WordWriteResult result = WordWriteResult::Done;
  std::filesystem::path place{};  ///< of `CannotWrite`: what cannot be written, and why
  std::error_code error{};
};

struct WordWriteJob {
  /// Tabs are kept; CR, LF, CR LF, VT and FF within a paragraph are line breaks. A lone surrogate becomes
  /// U+FFFD. Characters that XML cannot hold, mainly control characters, are left out.
  std::vector<std::u16string> paragraphs;
  std::filesystem::path target;
  WordFormat format = WordFormat::Doc;
  std::function<bool()> isCancelled;  ///< asked several times a second; may be empty
};

/// Writes word-processor documents.
class WordWriter {
 public:
  virtual ~WordWriter() = default;

  /// Replaces the target by a document of these paragraphs, in one step once it is complete. Unless the
  /// result is `Done`, the target is unchanged.
  virtual WordWriteOutcome Write(const WordWriteJob& job) = 0;
};

}  // namespace quorvantis

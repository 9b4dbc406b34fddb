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

/// How the writing of a document ended.
enum class WordWriteResult {
  Done,
  WordProcessorMissing,  ///< not installed, or it cannot be started
  WordProcessorFailed,   ///< it made no document
  TimedOut,              ///< it took too long and was ended
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
  /// U+FFFD, and what no XML file can hold, above all control characters, is left out.
  std::vector<std::u16string> paragraphs;
  std::filesystem::path target;
  WordFormat format = WordFormat::Doc;
  std::function<bool()> isCancelled;  ///< asked several times a second; may be empty
};

/// Writes the documents of word processors.
class WordWriter {
 public:
  virtual ~WordWriter() = default;

  /// Puts a document of these paragraphs in the place of the target, in one step and not before it is whole.
  /// Unless the result is `Done`, the target is as it was.
  virtual WordWriteOutcome Write(const WordWriteJob& job) = 0;
};

}  // namespace quorvantis

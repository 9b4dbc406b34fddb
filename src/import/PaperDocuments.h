// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CodePage.h"
#include "platform/WordDocuments.h"

namespace quorvantis {

/// Reads papers that are plain text (.txt, .md): UTF-8, UTF-16 with a mark, otherwise 8-bit text of the code
/// page. Line ends stay as they are; there are no tables, pictures or formulas. Of Markdown, backslashes are
/// resolved.
class TextDocuments : public WordDocuments {
 public:
  /// `codePage` must outlive this.
  explicit TextDocuments(const CodePage& codePage) : codePage_(codePage) {}

  WordReadOutcome Open(const std::filesystem::path& file, const WordReadOptions& options) override;

 private:
  const CodePage& codePage_;
};

/// Reads papers of every kind: files named ".txt" or ".md" as text, all others as word-processor documents;
/// their content decides the type.
class PaperDocuments : public WordDocuments {
 public:
  /// Both must outlive this. `codePage` is that of 8-bit text.
  PaperDocuments(const CodePage& codePage, WordDocuments& word) : text_(codePage), word_(word) {}

  WordReadOutcome Open(const std::filesystem::path& file, const WordReadOptions& options) override;

 private:
  TextDocuments text_;
  WordDocuments& word_;
};

}  // namespace quorvantis

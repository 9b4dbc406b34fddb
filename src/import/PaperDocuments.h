// SPDX-License-Identifier: MIT
#pragma once

#include "import/TextDocuments.h"

namespace quorvantis {

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

// SPDX-License-Identifier: MIT
#pragma once

#include "import/PaperReader.h"
#include "platform/CodePage.h"

namespace quorvantis {

/// Reads papers that are plain text (.txt): UTF-8, UTF-16 with a mark, otherwise 8-bit text of the code page.
/// Line ends stay as they are; there are no tables, pictures or formulas.
class TextPaperReader : public PaperReader {
 public:
  /// `codePage` must outlive the reader.
  explicit TextPaperReader(const CodePage& codePage) : codePage_(codePage) {}

  PaperOutcome Read(const std::filesystem::path& document, const PaperReading& reading) override;

 private:
  const CodePage& codePage_;
};

}  // namespace quorvantis

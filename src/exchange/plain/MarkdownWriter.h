// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/form/Format.h"

namespace quorvantis {

/// Writes an exam as text to read and to mail: numbered questions, lettered options, the answers at the end
/// of each question. Papers in this form can be imported.
class MarkdownWriter : public FormatWriter {
 public:
  std::string Write(const ExchangedExam& exam, const StringTable& strings, Progress& progress) override;
};

/// Whether a file looks like one of these: numbered questions, and all below them indented.
bool LooksLikeMarkdown(const ExchangeSource& source);

}  // namespace quorvantis

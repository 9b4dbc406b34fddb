// SPDX-License-Identifier: MIT
// Aiken: a question in a line, options in lines that begin with "A." or "A)", and "ANSWER: B".
#pragma once

#include "exchange/form/Format.h"

#include <string_view>

namespace quorvantis {

bool LooksLikeAiken(const ExchangeSource& source);

/// Whether a line is an answer or an option wherever it stands, so that no question can begin with it.
bool IsNoAikenText(std::u16string_view line);

class AikenReader : public FormatReader {
 public:
  std::optional<ExchangedExam> Read(const ExchangeSource& source, ReadingTools& tools) override;
};

class AikenWriter : public FormatWriter {
 public:
  std::string Write(const ExchangedExam& exam, const StringTable& strings, Progress& progress) override;
};

}  // namespace quorvantis

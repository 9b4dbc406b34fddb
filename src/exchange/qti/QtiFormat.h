// SPDX-License-Identifier: MIT
// QTI 2.1: a package with a manifest, a test, an item for each question, and media beside them.
#pragma once

#include "exchange/form/Format.h"

namespace quorvantis {

bool LooksLikeQti(const ExchangeSource& source);

class QtiReader : public FormatReader {
 public:
  std::optional<ExchangedExam> Read(const ExchangeSource& source, ReadingTools& tools) override;
};

class QtiWriter : public FormatWriter {
 public:
  std::string Write(const ExchangedExam& exam, const StringTable& strings, Progress& progress) override;
};

}  // namespace quorvantis

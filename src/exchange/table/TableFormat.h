// SPDX-License-Identifier: MIT
// A table with a question in each row, as spreadsheets open and save it. The first row names the columns:
// kind, question, A to E, right, answers, model answer, score.
#pragma once

#include "exchange/form/Format.h"

namespace quorvantis {

/// With commas or semicolons between the cells.
bool LooksLikeTable(const ExchangeSource& source);
bool LooksLikeTabTable(const ExchangeSource& source);

class TableReader : public FormatReader {
 public:
  std::optional<ExchangedExam> Read(const ExchangeSource& source, ReadingTools& tools) override;
};

class TableWriter : public FormatWriter {
 public:
  explicit TableWriter(char16_t separator) : separator_(separator) {}

  std::string Write(const ExchangedExam& exam, const StringTable& strings, Progress& progress) override;

 private:
  char16_t separator_;
};

}  // namespace quorvantis

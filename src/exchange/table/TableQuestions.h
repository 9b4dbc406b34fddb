// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/form/ExchangedExam.h"
#include "exchange/form/Format.h"
#include "exchange/table/RightCell.h"
#include "exchange/table/TableColumns.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// Makes questions of the rows below the names of the columns, and tells what of them finds no place.
class TableQuestions {
 public:
  /// Both must outlive this.
  TableQuestions(const TableColumns& columns, ReadingTools& tools) : columns_(columns), tools_(tools) {}

  ExchangedQuestion Read(const TableRow& row, int number);

 private:
  static std::u16string Cell(const TableRow& row, std::optional<std::size_t> column);
  std::u16string Text(std::u16string_view cell);
  std::vector<std::u16string> OptionCells(const TableRow& row) const;
  void TakeKey(const TableRow& row, ExchangedQuestion& question);
  void TakeRights(std::u16string_view cell, const std::vector<std::u16string>& options,
                  ExchangedQuestion& question);
  void TellDoubt(const NamedOptions& named, std::u16string_view cell);
  void TellKey(std::u16string_view cell);
  void TakeTrueFalse(std::u16string_view cell, ExchangedQuestion& question);
  void TakeAnswers(std::u16string_view cell, ExchangedQuestion& question);
  void TakeScore(std::u16string_view cell, ExchangedQuestion& question);
  void TakeKind(std::u16string_view cell, ExchangedQuestion& question);
  void UseAnswers(ExchangedQuestion& question);
  void TellLeftOut(std::u16string_view text);

  const TableColumns& columns_;
  ReadingTools& tools_;
  bool isKeyTold_ = false;  ///< of this question
};

}  // namespace quorvantis

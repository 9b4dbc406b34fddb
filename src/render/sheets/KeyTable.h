// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamPaper.h"
#include "text/Utf.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// The key of one question.
struct KeyRow {
  int number;  ///< of the question, from 1
  QuestionKind kind;
  std::u16string key;          ///< letters ("A C"), the answers ("red / blue"), or the model answer
  std::optional<float> score;  ///< nothing unless the exam has ranges of scores
};

/// The letters of the right options in alphabetical order, each once, with blanks between them.
std::u16string KeyLetters(std::u16string_view answerLetters);

/// The keys of the questions 1 to `questionCount`, in their order.
std::vector<KeyRow> KeyTable(const ExamPaper& exam);

/// The table for a spreadsheet: UTF-8 with a byte-order mark, fields quoted where needed, lines ended by CR
/// LF, the first one with headings in English. Fields that a spreadsheet would take for a formula get an
/// apostrophe.
std::string KeyCsv(const std::vector<KeyRow>& rows);

/// One line of such a file, for tables of other shapes, in UTF-8.
std::string CsvLine(const std::vector<std::u16string>& fields);

/// What a file of such lines begins with: without it, spreadsheets take the bytes for an 8-bit code.
inline constexpr std::string_view kCsvStart = kUtf8Mark;

/// A score without needless zeros: "1", "2.5".
std::u16string ShortScore(double score);

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
// Reads the answers at the end of a paper, line by line.
#pragma once

#include "import/keys/KeyTokens.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace quorvantis {

/// What a line of a key at the end can be.
enum class KeyLineKind {
  Blank,
  Entries,    ///< numbers with answers
  NumberRow,  ///< numbers alone; the answers stand in the row below
  AnswerRow,  ///< those answers
  Title,      ///< of a part, or a heading
  Text,       ///< anything else
};

/// A line of a key, and the answers in it.
struct KeyLineReading {
  KeyLineKind kind = KeyLineKind::Text;
  std::vector<KeyEntry> entries{};
};

/// Reads one line after the other; a row of numbers makes the next line a row of answers.
class KeyLineReader {
 public:
  explicit KeyLineReader(std::u16string_view text) : text_(text) {}

  KeyLineReading Read(TextSpan line);

 private:
  bool ReadNumberRow(TextSpan line);
  /// "1-5", or "1-5  6-10", whose letters stand in the row below.
  bool ReadRangeRow(TextSpan line);
  std::vector<KeyEntry> RangeAnswers(TextSpan line) const;
  std::vector<KeyEntry> AnswerRow(TextSpan line) const;
  /// The entries of a row whose letters stand under no numbers.
  std::vector<KeyEntry> MiscountedRow(const std::vector<TextSpan>& cells, TextSpan line) const;

  std::u16string_view text_;
  std::vector<int> numbers_;  ///< of a row, 0 for a cell without; empty if the line before was no such row
  std::vector<KeyRange> ranges_;  ///< the same for a row of ranges
  bool hasTabs_ = false;
};

/// The title of a part of a key.
struct KeyTitle {
  TextSpan title;
  std::size_t first = 0;  ///< the index of the entry behind it
};

/// All that a part of a paper says as a key.
struct KeyList {
  std::vector<KeyEntry> entries{};
  std::vector<KeyTitle> titles{};
  std::vector<TextSpan> unread{};        ///< lines that belong to no answer
  std::vector<TextSpan> explanations{};  ///< lines behind answers in letters
};

/// Reads a key with answers in words, too: "11. photosynthesis". Lines without a number go on with the text
/// of the entry before. Gives up, with what it has, on a text that is no key.
KeyList ReadKeyList(std::u16string_view text, TextSpan within);

/// Answers of one line in words or letters, each behind its number: "11. oxygen  12. water", "6 brought, 7
/// mice". Numbers that nothing sets off count behind a title or heading only: `isBehindTitle`.
std::vector<KeyEntry> TextEntriesOfLine(std::u16string_view text, TextSpan line, bool isBehindTitle = false);

/// Whether a line has answers with their numbers, behind the title of their part or not: "一、1．B  2．C".
bool HoldsAnswers(std::u16string_view text, TextSpan line);

/// The answers of a key that has no numbers, "BCADB", in their order; empty if there is anything else.
std::vector<KeyEntry> ReadBareKey(std::u16string_view text, TextSpan within);

}  // namespace quorvantis

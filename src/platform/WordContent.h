// SPDX-License-Identifier: MIT
// The content of a word-processor document, as plain values.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace quorvantis {

enum class WordObjectKind { Picture, Equation };

/// A picture or an equation between two characters of a text.
struct WordObject {
  std::size_t position = 0;  ///< in UTF-16 units: the object stands before this character, or at the end
  WordObjectKind kind = WordObjectKind::Picture;
  std::size_t picture = 0;  ///< for `WordPictures::Read`; from 0, in the order of the document
};

/// How characters stand out from those around them; the values are summed up.
namespace emphasis {
inline constexpr std::uint8_t kBold = 1;
inline constexpr std::uint8_t kUnderlined = 2;
inline constexpr std::uint8_t kColoured = 4;     ///< in another colour than most of the text
inline constexpr std::uint8_t kHighlighted = 8;  ///< or shaded
inline constexpr std::uint8_t kItalic = 16;
}  // namespace emphasis

/// Characters with the same emphasis, from `begin` to before `end`, in UTF-16 units.
struct EmphasisRun {
  std::size_t begin = 0;
  std::size_t end = 0;
  std::uint8_t kinds = 0;
};

/// The characters as a word processor's selection yields them: CR after each paragraph, VT for a line break,
/// FF for a page break, TAB; of a field its result. Headers, footers, notes, comments, hidden and deleted
/// text are left out. The text of a text box follows the paragraph to which it is anchored.
struct WordText {
  std::u16string characters;
  std::vector<WordObject> objects;      ///< by position; several in one place keep their order
  std::vector<EmphasisRun> emphasis{};  ///< by position, without overlaps; empty for plain text
};

/// A table that is not inside another one.
struct WordTable {
  /// The cells of each row, from left to right, so rows can have different lengths where cells are merged.
  /// The text of a cell ends in CR BEL. A cell that only continues the one above is otherwise empty. Tables
  /// within a cell are part of its text; their cells and rows end in CR BEL too.
  std::vector<std::vector<WordText>> rows;
  std::size_t position = 0;  ///< the table stands before this unit of the running text, or at its end
};

struct WordContent {
  WordText runningText;              ///< without the tables
  std::vector<WordTable> tables;     ///< in the order of the document
  std::size_t pictures = 0;          ///< their number, including those in tables
  bool hasNumbersLeftOut = false;    ///< automatic numbers that are not part of the text
  bool hasAutomaticNumbers = false;  ///< whether they are part of the text or not
  bool isPlainText = false;          ///< not written by a word processor
};

}  // namespace quorvantis

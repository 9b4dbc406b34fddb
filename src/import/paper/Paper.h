// SPDX-License-Identifier: MIT
#pragma once

#include "import/paper/PaperText.h"
#include "platform/WordContent.h"

#include <vector>

namespace quorvantis {

/// A table in the text of a paper.
struct TableInPaper {
  TextSpan place;                           ///< all of it
  std::vector<std::vector<TextSpan>> rows;  ///< the cells of each row, without their end marks
};

/// A paper as a reader sees it: its text with the tables in their places, each row a line and a tab between
/// cells, and the emphasis of the characters. Pictures and formulas are the texts that stand for them.
struct Paper {
  PaperText source;  ///< its origins are its own places
  std::vector<TableInPaper> tables;
  bool hasPictures = false;  ///< there are names of pictures in the text; likewise:
  bool hasFormulas = false;
};

/// The paper of a document whose objects have become text.
Paper PaperOf(const WordContent& document);

/// A paper of plain text.
Paper PaperOf(std::u16string_view text);

/// The text without the tables: what the marking of running text gets.
PaperText RunningText(const Paper& paper);

}  // namespace quorvantis

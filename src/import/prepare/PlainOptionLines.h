// SPDX-License-Identifier: MIT
#pragma once

#include "import/paper/PaperText.h"

#include <vector>

namespace quorvantis {

/// An option without a label.
struct PlainOption {
  TextSpan bullet;  ///< with the blanks behind it: gives way to the label; empty if there is none
  /// Where the label goes without a bullet: behind a sign for the right option, which keeps its place.
  std::size_t labelPlace = 0;
  TextSpan gap{};  ///< blanks before an option that others precede in its line: a line end comes there
  bool isWithinLine = false;
};

/// How sure it is that lines are options.
enum class PlainEvidence {
  None,
  Count,  ///< lines after a first one; only many questions with as many of them make options of them
  Stem,   ///< short lines after one that ends as stems do
  Bullets,
};

/// Lines at the end of a question that may be its options.
struct PlainOptionLines {
  PlainEvidence evidence = PlainEvidence::None;
  std::vector<PlainOption> options;
  bool hasRoom = false;  ///< a question of one or two lines, which cannot have any, says nothing of others
};

/// Looks at the text of one question, from behind its number up to its own answer.
PlainOptionLines FindPlainOptions(std::u16string_view text, TextSpan body);

}  // namespace quorvantis

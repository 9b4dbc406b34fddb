// SPDX-License-Identifier: MIT
#pragma once

#include "import/labels/LineText.h"
#include "import/prepare/PreparationSteps.h"

#include <vector>

namespace quorvantis {

/// What the lines of a paper are, as far as that can be told without numbers of questions.
enum class LineKind {
  Text,
  Blank,
  Option,  ///< from the first label of options to the line of the last one
  Answer,  ///< begins with the label of an answer
};

struct ClassifiedLine {
  TextSpan span;
  LineKind kind = LineKind::Text;
};

/// The lines within a span. Options are told by labels at the beginning of lines that start again and again
/// from their first letter; those of one style are looked for, the most frequent one. Without any, lines with
/// bullets are options.
std::vector<ClassifiedLine> ClassifiedLines(std::u16string_view text, TextSpan within,
                                            const PreparationContext& context);

}  // namespace quorvantis

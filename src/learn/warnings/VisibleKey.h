// SPDX-License-Identifier: MIT
#pragma once

#include "import/marking/QuestionTextParser.h"

#include <string>

namespace quorvantis {

/// What looks like the key in a text that pupils will see: "( B )" in the question, a label before an answer,
/// a sign at an option, what a step has put in. Empty if nothing does.
std::u16string VisibleKey(const ReadQuestion& question);

/// Whether a whole line of a key at the end stands in such a text, or was taken for a question.
bool ShowsKeyLine(const ReadQuestion& question);

}  // namespace quorvantis

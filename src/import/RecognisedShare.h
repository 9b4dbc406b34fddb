// SPDX-License-Identifier: MIT
#pragma once

#include "import/ImportReport.h"
#include "platform/WordContent.h"

#include <cstddef>

namespace quorvantis {

/// Whether the rules recognised less than half of a paper: of its text, or of what they took for questions.
/// An import of such a paper is worth little, and other rules may fit. False for an empty paper and after a
/// failure.
bool RecognisesLittle(const ImportReport& report);

/// The size of the text in a document's tables, without blanks, in UTF-16 units.
std::size_t UnitsOfTables(const WordContent& document);

}  // namespace quorvantis

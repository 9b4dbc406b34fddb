// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamPaper.h"
#include "platform/StringTable.h"

#include <string>

namespace quorvantis {

/// The block at the top of every question page: how the scores are distributed. Deliberate: a range that
/// begins after the last question leaves an empty table, which makes the spacing of the page.
std::u16string ScoreTable(const ExamPaper& exam, const StringTable& strings);

}  // namespace quorvantis

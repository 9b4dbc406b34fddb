// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamPaper.h"
#include "platform/StringTable.h"

#include <string>

namespace quorvantis {

/// The block that heads every question page: how the scores are spread over the questions. A range that
/// begins after the last question leaves an empty table, deliberately: the distances on the page are made of
/// them.
std::u16string ScoreTable(const ExamPaper& exam, const StringTable& strings);

}  // namespace quorvantis

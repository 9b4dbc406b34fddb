// SPDX-License-Identifier: MIT
#pragma once

#include "overview/ScoreChanges.h"
#include "platform/StringTable.h"

#include <string>
#include <vector>

namespace quorvantis {

/// The changes for the user, a sentence each: the first few, and how many others there are.
std::vector<std::u16string> ScoreChangeTexts(const std::vector<ScoreChange>& changes,
                                             const StringTable& strings);

}  // namespace quorvantis

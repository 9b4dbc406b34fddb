// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace quorvantis {

/// Numbers as users read them: "3, 7-9". They are ascending, without repetitions.
std::u16string NumberRanges(const std::vector<int>& numbers);

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
// The names of versions. Files are named after them, so not every text will do.
#pragma once

#include "platform/StringTable.h"

#include <string>
#include <vector>

namespace quorvantis {

/// The longest name, in UTF-16 units.
inline constexpr std::size_t kMaxVersionName = 40;

/// "A", "B" and so on; at most kMaxVersions.
std::vector<std::u16string> LetterNames(std::size_t count);

/// What is wrong with the names, for the user; empty if nothing is. There must be 1 to kMaxVersions, all
/// different even where the case of letters does not count, or marks stand apart from their letters, each a
/// possible beginning of a file name on every system.
std::u16string ProblemWithNames(const std::vector<std::u16string>& names, const StringTable& strings);

}  // namespace quorvantis

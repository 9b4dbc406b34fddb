// SPDX-License-Identifier: MIT
// Values of profile files as programs for Windows read them.
#pragma once

#include "ini/ProfileFile.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>

namespace quorvantis {

/// Values are read into a buffer of this many UTF-16 units, the last of which is its terminator.
constexpr std::size_t kProfileStringBuffer = 1024;

/// The value, cut to 1023 units; `fallback` when there is none.
std::u16string ReadProfileString(std::u16string_view section, std::u16string_view key,
                                 std::u16string_view fallback, const ProfileFile& file);

/// The value of a key in each section that has it, by the names of the sections as written in the file; the
/// first one if a section or a key occurs more than once.
std::map<std::u16string, std::u16string> ReadProfileStringOfAll(std::u16string_view key,
                                                                const ProfileFile& file);

/// The number that the value's leading decimal digits make, 0 without any; `fallback` when there is no value.
int ReadProfileInteger(std::u16string_view section, std::u16string_view key, int fallback,
                       const ProfileFile& file);

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <limits>

namespace quorvantis {

/// Makes `copy` a hard link to the file `source`, or a copy of it where the file system has no links, unless
/// it has more than `largestCopy` bytes. False when there is no such file, it is too large or there is no
/// room.
bool LinkOrCopy(const std::filesystem::path& source, const std::filesystem::path& copy,
                std::uintmax_t largestCopy = std::numeric_limits<std::uintmax_t>::max());

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>

namespace quorvantis {

/// What is wrong with an attached file by itself.
enum class FileHealth {
  Good,
  Missing,   ///< or it cannot be opened
  Empty,     ///< no bytes
  Damaged,   ///< cut off, or nothing that programs for files of its name could read
  Misnamed,  ///< sound, but of another kind than its name says
};

/// Looks at the beginning and the end of a regular file, at most 100 KiB, by what its extension (in lower
/// case) promises. Extensions that promise nothing are taken as they are.
FileHealth HealthOf(const std::filesystem::path& file, std::u16string_view extension);

}  // namespace quorvantis

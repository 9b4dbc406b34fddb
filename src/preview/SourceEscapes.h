// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace quorvantis {

/// `page` with the addresses in its SRC attributes escaped where they name a file as it stands. Pages name
/// files plainly, but in an address "#", "?" and "%" have meanings of their own: "50%.jpg" would not be
/// found. `isFile` tells of a path, perhaps relative, whether the page could mean that file. Attributes
/// within the strings of a script, where quotes and backslashes are doubled, count too.
std::u16string EscapeSources(std::u16string_view page,
                             const std::function<bool(const std::filesystem::path&)>& isFile);

}  // namespace quorvantis

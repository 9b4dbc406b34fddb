// SPDX-License-Identifier: MIT
// What the two formats of Moodle have in common.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quorvantis {

/// The share of one of `rights` right options in percent, as Moodle accepts it: "33.33333".
std::string RightShare(std::size_t rights);

/// A title as the name of a category: a slash would divide it, so it is doubled.
std::u16string WithoutSlashes(std::u16string_view title);

/// The title that the path of a category ends with.
std::u16string TitleOfCategory(std::u16string_view path);

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
// What the formats of Moodle have in common.
#pragma once

#include "exchange/form/ExchangeNotes.h"

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

/// An accepted answer in which every star is one: a star stands for any text unless a backslash protects it.
std::u16string WithProtectedStars(std::u16string_view answer);

/// The same back. Tells of stars that stand for any text, as they are only characters in an exam.
std::u16string WithoutProtectedStars(std::u16string_view answer, ExchangeNotes& notes);

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

/// A line of a PDF file in the order in which it is read. Files hold the words of a line as they stand on
/// paper, from left to right, whatever their direction. Which order was meant cannot always be told: where a
/// line mixes directions, the one of most of its words counts.
std::u16string InReadingOrder(std::u16string_view line);

}  // namespace quorvantis

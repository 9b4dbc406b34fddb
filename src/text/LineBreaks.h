// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

/// The text with every line end (CR LF, CR or LF) as `lineEnd`.
std::u16string WithLineEnds(std::u16string_view text, std::u16string_view lineEnd);

}  // namespace quorvantis

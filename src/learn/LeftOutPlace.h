// SPDX-License-Identifier: MIT
#pragma once

#include "learn/RoleLookup.h"

#include <optional>
#include <string_view>

namespace quorvantis {

/// Where a part of a paper stands of which a warning tells the beginning: what became no question, as far as
/// the next line end. Nothing if there is no such text.
std::optional<TextSpan> LeftOutPlace(const Paper& paper, const RoleLookup& roles,
                                     std::u16string_view beginning);

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

namespace quorvantis {

/// Whether a word without markup says "true" or "false", in one of many languages; its case does not matter.
/// Nothing for other words.
std::optional<bool> TruthOf(std::u16string_view word);

}  // namespace quorvantis

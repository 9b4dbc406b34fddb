// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quorvantis {

/// Bytes as base64, without line ends.
std::string ToBase64(std::string_view bytes);

/// The bytes of base64, in which blanks and line ends do not count. Nothing if it is none.
std::optional<std::string> FromBase64(std::string_view text);

}  // namespace quorvantis

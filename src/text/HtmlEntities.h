// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quorvantis {

/// A character that is written as "&name;", "&#1234;" or "&#x12AB;".
struct HtmlEntity {
  char32_t codePoint = 0;
  std::size_t length = 0;  ///< of the reference, in UTF-16 units
};

/// The reference at the front of `text`, as browsers read it: a few old names need no semicolon. Nothing if
/// browsers would show the ampersand itself.
std::optional<HtmlEntity> ReadEntity(std::u16string_view text);

/// `text` with its references resolved.
std::u16string ResolveEntities(std::u16string_view text);

}  // namespace quorvantis

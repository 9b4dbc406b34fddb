// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

namespace quorvantis {

/// The length of what is likely a tag at the front of `text`, in UTF-16 units; 0 if there is none of at most
/// `longest` units. For those who look for words: in a text about numbers, a "<" whose ">" is far away is a
/// sign of comparison, and nothing is lost by it. What browsers make of a text is told by PageTokens.
constexpr std::size_t LikelyTagLength(std::u16string_view text, std::size_t longest) {
  const std::size_t name = text.starts_with(u"</") ? 2 : 1;
  if (name >= text.size() || text.front() != u'<') return 0;
  const auto lower = static_cast<char16_t>(text[name] | 0x20);
  if (lower < u'a' || lower > u'z') return 0;
  return text.substr(0, longest).find(u'>') + 1;  // nothing found: 0
}

}  // namespace quorvantis

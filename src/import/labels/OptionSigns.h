// SPDX-License-Identifier: MIT
// Signs that teachers put at the right option.
#pragma once

#include <string_view>

namespace quorvantis {

/// Signs of one unit that mean "right" wherever they stand at an option.
inline constexpr std::u16string_view kRightSigns = u"*＊✓✔√☑✅■●★☆→⇒◉►▶✗✘☒";

/// Signs that mean something only if they stand at few options of many: "X" at the right one, "+" at right
/// and "-" at wrong ones, filled boxes among empty ones.
inline constexpr std::u16string_view kPossibleSigns = u"+-–−XxхХ=#>○□☐◯◻";

/// What may follow a sign without being one: it chooses how an emoji looks.
inline constexpr char16_t kVariationSelector = u'\uFE0F';

constexpr bool IsOptionSign(char16_t unit) {
  return kRightSigns.find(unit) != kRightSigns.npos || kPossibleSigns.find(unit) != kPossibleSigns.npos;
}

}  // namespace quorvantis

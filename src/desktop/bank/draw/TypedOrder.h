// SPDX-License-Identifier: MIT
// What is typed into the window that draws from the bank, and how it is named to the user.
#pragma once

#include "bank/search/DrawnList.h"
#include "platform/StringTable.h"
#include "shell/settings/DrawSetting.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// The order that was typed, or why there is none.
struct TypedOrder {
  DrawOrder order;
  std::u16string problem = {};  ///< for the user; empty if there is none
};

/// Reads what was typed. A wish that is spread over tags becomes several (SpreadOver).
TypedOrder OrderOf(const TypedDraw& typed, const StringTable& strings);

/// What stands between tags on a line: the commas of keyboards for Latin, Arabic and Chinese.
inline constexpr std::u16string_view kTagCommas = u",\u060C\uFF0C";

/// Tags with commas between them; what is empty is left out. A tag that is none (CleanTag) goes into `bad`.
std::vector<std::u16string> TagsIn(std::u16string_view text, std::u16string& bad);

/// A wish for the user: "3 × Choice: cells, -class:8b".
std::u16string WishName(const DrawWish& wish, const StringTable& strings);

}  // namespace quorvantis

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

/// A wish for the user: "3 × Choice: cells, -class:8b".
std::u16string WishName(const DrawWish& wish, const StringTable& strings);

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "check/CheckRule.h"

#include <span>
#include <string_view>

namespace quorvantis {

/// All rules; docs/CHECKS.md has them in the same order.
std::span<const CheckRuleRow> CheckRules();

/// Null if no rule has that identifier.
const CheckRuleRow* FindCheckRule(std::string_view id);

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>

namespace quorvantis {

/// Year, month and day, the same in every locale: "2024-03-01".
std::u16string DayText(std::chrono::sys_days day);

}  // namespace quorvantis

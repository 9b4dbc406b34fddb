// SPDX-License-Identifier: MIT
#include "text/DayText.h"

#include "text/NumberText.h"

namespace quorvantis {

std::u16string DayText(std::chrono::sys_days day) {
  const std::chrono::year_month_day date(day);
  const auto twoDigits = [](unsigned number) { return (number < 10 ? u"0" : u"") + FormatInteger(number); };
  return FormatInteger(static_cast<int>(date.year())) + u"-" +
         twoDigits(static_cast<unsigned>(date.month())) + u"-" + twoDigits(static_cast<unsigned>(date.day()));
}

}  // namespace quorvantis

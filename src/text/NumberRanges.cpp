// SPDX-License-Identifier: MIT
#include "text/NumberRanges.h"

#include "text/NumberText.h"

namespace quorvantis {

std::u16string NumberRanges(const std::vector<int>& numbers) {
  std::u16string text;
  for (std::size_t i = 0; i < numbers.size();) {
    std::size_t next = i + 1;
    while (next < numbers.size() && numbers[next] == numbers[next - 1] + 1) ++next;
    text += (text.empty() ? u"" : u", ") + FormatInteger(numbers[i]);
    if (next > i + 1) text += u"-" + FormatInteger(numbers[next - 1]);
    i = next;
  }
  return text;
}

}  // namespace quorvantis

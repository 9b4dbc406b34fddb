// SPDX-License-Identifier: MIT
#include "text/TextChange.h"

#include <algorithm>

namespace quorvantis {

TextChange FindChange(std::u16string_view before, std::u16string_view after) {
  const std::size_t shorter = std::min(before.size(), after.size());
  std::size_t start = 0;
  while (start < shorter && before[start] == after[start]) ++start;
  std::size_t tail = 0;
  while (tail < shorter - start && before[before.size() - 1 - tail] == after[after.size() - 1 - tail]) ++tail;
  return {start, before.size() - start - tail, after.size() - start - tail};
}

TextChange FindChange(std::u16string_view before, std::u16string_view after, std::size_t end) {
  const TextChange change = FindChange(before, after);
  const std::size_t last = change.start + change.added;
  if (end > after.size() || end == last) return change;
  if (end > last) {
    const std::size_t more = end - last;
    return {change.start, change.removed + more, change.added + more};
  }
  const std::size_t back = last - end;
  if (back > change.start) return change;
  const TextChange moved{change.start - back, change.removed, change.added};
  const bool isSame = before.substr(moved.start + moved.removed, back) == after.substr(end, back);
  return isSame ? moved : change;
}

}  // namespace quorvantis

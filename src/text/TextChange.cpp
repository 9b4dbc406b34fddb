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

}  // namespace quorvantis

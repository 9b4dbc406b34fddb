// SPDX-License-Identifier: MIT
#include "shell/language/BuiltInStrings.h"

#include "shell/language/BuiltInTable.h"

namespace quorvantis {

std::u16string BuiltInStrings::Text(int number) const {
  return std::u16string(FindBuiltInText(0, number));
}

std::vector<int> BuiltInStrings::Numbers() {
  std::vector<int> numbers;
  for (const BuiltInText& text : BuiltInTexts()) {
    if (text.place.first == 0) numbers.push_back(text.place.second);
  }
  return numbers;
}

}  // namespace quorvantis

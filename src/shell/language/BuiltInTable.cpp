// SPDX-License-Identifier: MIT
#include "shell/language/BuiltInTable.h"

#include <algorithm>

namespace quorvantis {

std::u16string_view FindBuiltInText(int dialog, int number) {
  const std::pair place(dialog, number);
  const std::span<const BuiltInText> texts = BuiltInTexts();
  const auto found = std::ranges::lower_bound(texts, place, {}, &BuiltInText::place);
  return found == texts.end() || found->place != place ? std::u16string_view() : found->text;
}

}  // namespace quorvantis

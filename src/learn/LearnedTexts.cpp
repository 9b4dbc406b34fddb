// SPDX-License-Identifier: MIT
#include "learn/LearnedTexts.h"

namespace quorvantis {

std::vector<std::u16string> LearnedLines(const LearnedRules& /*learned*/, const StringTable& /*strings*/) {
  return {};
}

std::u16string FactText(const LearnedFact& fact, const StringTable& strings) {
  return strings.Text(fact.text);
}

std::u16string RoleName(PaperRole /*role*/, const StringTable& /*strings*/) {
  return {};
}

}  // namespace quorvantis

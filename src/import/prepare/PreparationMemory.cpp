// SPDX-License-Identifier: MIT
#include "import/prepare/PreparationMemory.h"

#include "import/marking/RuleKeys.h"

#include <algorithm>

namespace quorvantis {

PreparationMemory::Text PreparationMemory::Find(const std::u16string& made) const {
  const auto found = texts_.find(made);
  return found == texts_.end() ? nullptr : found->second;
}

void PreparationMemory::Keep(std::u16string made, Text text) {
  constexpr std::size_t kMostUnits = 4'000'000;
  units_ += text->Size() + made.size();
  if (units_ > kMostUnits) {
    texts_.clear();
    units_ = text->Size() + made.size();
  }
  texts_.insert_or_assign(std::move(made), std::move(text));
}

PaperOutline PreparationMemory::Outline(const PaperText& text, const ImportSettings& rules,
                                        const CancelHook& isCancelled) {
  constexpr std::size_t kMostOutlines = 8;
  std::u16string key = RulesAsText(rules);
  const auto isSame = [&](const Outlined& known) {
    return known.text == text.characters && known.rules == key;
  };
  const auto found = std::ranges::find_if(outlines_, isSame);
  if (found != outlines_.end()) return found->outline;
  PaperOutline outline = OutlineOf(text, rules, isCancelled);
  if (outlines_.size() == kMostOutlines) outlines_.pop_front();
  outlines_.push_back({std::move(key), text.characters, outline});
  return outline;
}

std::u16string RulesAsText(const ImportSettings& rules) {
  constexpr char16_t kBetween = u'\0';
  std::u16string text;
  for (const PatternRule& rule : kPatternRules) {
    if (rule.key != rule_key::kPattern) text.append(rules.*rule.pattern).append(1, kBetween);
  }
  return text;
}

}  // namespace quorvantis

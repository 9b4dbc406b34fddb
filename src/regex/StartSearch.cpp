// SPDX-License-Identifier: MIT
#include "regex/StartSearch.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// About how many of a thousand units in papers are in a set. A rough guess is enough: it only decides which
/// of two sets to search for.
double Frequency(const CharacterSet& units) {
  double sum = static_cast<double>(units.Count()) / 100;  // of any script
  for (char16_t unit = 0; unit < 128; ++unit) {
    if (!units.Contains(unit)) continue;
    if (unit == u' ') {
      sum += 150;
    } else if (unit >= u'a' && unit <= u'z') {
      sum += 25;
    } else {
      sum += unit < u' ' ? 1 : 2;
    }
  }
  return sum;
}

/// Moves the condition that the fewest places meet to the front, preferring those with few ranges.
std::vector<StartSearch::Condition> Ordered(std::vector<StartSearch::Condition> conditions) {
  const auto cost = [](const StartSearch::Condition& condition) {
    return Frequency(*condition.units) + (UnitSearch(condition.units).IsWide() ? 0 : 1000);
  };
  std::ranges::stable_sort(conditions, {}, cost);
  return conditions;
}

}  // namespace

StartSearch::StartSearch(std::vector<Condition> conditions)
    : conditions_(Ordered(std::move(conditions))), search_(conditions_.front().units) {}

std::optional<int> StartSearch::Find(std::u16string_view text, int from) const {
  const int offset = conditions_.front().offset;
  if (from + offset < 0 && CanBegin(text, from)) return from;
  for (auto at = static_cast<std::size_t>(std::max(from + offset, 0));; ++at) {
    at = search_.Find(text, at);
    if (at >= text.size()) return std::nullopt;
    const int place = static_cast<int>(at) - offset;
    if (CanBegin(text, place)) return place;
  }
}

int StartSearch::Reach() const {
  return std::max(std::ranges::max(conditions_, {}, &Condition::offset).offset, 0);
}

/// Whether the conditions that were not searched for are met.
bool StartSearch::CanBegin(std::u16string_view text, int place) const {
  for (std::size_t i = 1; i < conditions_.size(); ++i) {
    const int at = place + conditions_[i].offset;
    if (at < 0) continue;
    const auto index = static_cast<std::size_t>(at);
    if (index >= text.size() || !conditions_[i].units->Contains(text[index])) return false;
  }
  return true;
}

}  // namespace quorvantis

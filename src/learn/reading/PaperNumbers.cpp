// SPDX-License-Identifier: MIT
#include "learn/reading/PaperNumbers.h"

#include "import/labels/LineText.h"
#include "import/labels/Numerals.h"
#include "import/labels/OptionSequence.h"
#include "import/marking/RuleKeys.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

bool IsNumberRule(std::u16string_view key) {
  return key == rule_key::kPreQuestion || key == rule_key::kPreParenQuestion;
}

/// Numerals made of letters, which words are made of, too.
bool IsOfLetters(NumeralKind kind) {
  return kind == NumeralKind::UpperRoman || kind == NumeralKind::LowerRoman;
}

/// The number in a label such as "Question 12)". Words before it may begin like Roman numerals.
int NumberIn(std::u16string_view label) {
  for (std::size_t at = 0; at < label.size(); ++at) {
    for (const Numeral& numeral : NumeralsAt(label, at, kLongNumberDigits)) {
      if (numeral.kind == NumeralKind::Decimal) return SectionedNumeralAt(label, at).value;
      if (!IsOfLetters(numeral.kind)) return numeral.value;
    }
  }
  for (std::size_t at = 0; at < label.size(); ++at) {
    const bool isSetOff = at == 0 || IsBlank(label[at - 1]) || IsLineEnd(label[at - 1]) ||
                          kLabelOpens.find(label[at - 1]) != kLabelOpens.npos;
    if (!isSetOff) continue;
    for (const Numeral& numeral : NumeralsAt(label, at, kLongNumberDigits)) {
      const std::size_t end = at + numeral.size;
      const bool isWhole = end == label.size() || IsBlank(label[end]) || IsLineEnd(label[end]) ||
                           kLabelCloses.find(label[end]) != kLabelCloses.npos;
      if (isWhole) return numeral.value;
    }
  }
  return 0;
}

/// Where each question's text begins in the paper.
std::vector<std::pair<std::uint32_t, int>> BeginsOf(const PaperReading& reading) {
  std::vector<std::pair<std::uint32_t, int>> begins;
  const TextOrigins& origins = reading.marked.trace.origins;
  for (std::size_t i = 0; i < reading.paper.questions.size(); ++i) {
    const TextSpan text = reading.paper.questions[i].places.text;
    std::size_t at = text.begin;
    while (at < text.end && origins[at] == kInserted) ++at;
    if (at < text.end) begins.emplace_back(origins[at], static_cast<int>(i));
  }
  std::ranges::sort(begins);
  return begins;
}

}  // namespace

std::vector<PaperNumber> NumbersOf(const Paper& paper, const PaperReading& reading) {
  std::vector<const ReplacedMatch*> matches;
  for (const ReplacedMatch& match : reading.marked.trace.replaced) {
    if (IsNumberRule(match.key) && !match.units.empty()) matches.push_back(&match);
  }
  std::ranges::sort(matches, {}, [](const ReplacedMatch* match) { return match->units.front(); });
  const auto begins = BeginsOf(reading);
  std::vector<PaperNumber> numbers;
  auto next = begins.begin();
  for (const ReplacedMatch* match : matches) {
    while (next != begins.end() && next->first < match->units.back()) ++next;
    std::u16string label;
    for (const std::uint32_t place : match->units) label += paper.source.characters[place];
    numbers.push_back({NumberIn(label), next == begins.end() ? -1 : next->second});
  }
  return numbers;
}

}  // namespace quorvantis

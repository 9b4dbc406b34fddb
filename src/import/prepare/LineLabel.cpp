// SPDX-License-Identifier: MIT
#include "import/prepare/LineLabel.h"

#include "import/labels/LineText.h"
#include "import/labels/OptionSequence.h"
#include "import/labels/OptionSigns.h"
#include "import/prepare/LineWords.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// In its alphabet, or in the looks of another one's.
bool CanLabel(char16_t unit) {
  constexpr char16_t kFirstWithoutLooks = 0x0530;  // Latin, Greek and Cyrillic letters come before it
  if (!AlphabetLettersOf(unit).empty()) return true;
  if (unit >= kFirstWithoutLooks || !IsLetter(unit)) return false;
  return std::ranges::any_of(OptionAlphabets(), [unit](const OptionAlphabet& alphabet) {
    return IndexInAlphabet(alphabet, unit) < alphabet.letters.size();
  });
}

bool IsSymbolLetter(char16_t unit) {
  const auto& letters = AlphabetLettersOf(unit);
  return !letters.empty() && OptionAlphabets()[letters[0].alphabet].isSymbol;
}

std::optional<LineLabel> LabelAt(std::u16string_view text, std::size_t at, std::size_t end) {
  LineLabel label;
  if (at < end && kLabelOpens.find(text[at]) != kLabelOpens.npos) label.open = text[at++];
  if (at >= end) return std::nullopt;
  label.letter = {at, at + 1};
  const std::size_t after = SkipBlanks(text, at + 1, std::min(at + 2, end));
  const bool isClosed = after < end && kLabelCloses.find(text[after]) != kLabelCloses.npos;
  label.close = isClosed ? TextSpan{after, after + 1} : TextSpan{at + 1, at + 1};
  const bool standsAlone = at + 1 < end && IsBlank(text[at + 1]) && label.open == 0;
  if (!isClosed && !standsAlone && !IsSymbolLetter(text[at])) return std::nullopt;
  return CanLabel(text[at]) ? std::optional(label) : std::nullopt;
}

}  // namespace

std::optional<LineLabel> LineLabelOf(std::u16string_view text, TextSpan line) {
  const std::size_t begin = SkipBlanks(text, line.begin, line.end);
  if (const auto label = LabelAt(text, begin, line.end)) return label;
  if (begin >= line.end || !IsOptionSign(text[begin])) return std::nullopt;
  return LabelAt(text, SkipBlanks(text, begin + 1, line.end), line.end);
}

}  // namespace quorvantis

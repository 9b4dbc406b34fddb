// SPDX-License-Identifier: MIT
#include "import/lines/LineLabel.h"

#include "import/labels/LineText.h"
#include "import/labels/OptionSequence.h"
#include "import/labels/OptionSigns.h"
#include "import/lines/LineWords.h"

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

/// The size of the longest label there, 1 for a letter that only looks like one.
std::size_t LongestLabel(std::u16string_view text, std::size_t at) {
  std::size_t longest = 1;
  for (const AlphabetLabel& label : AlphabetLabelsAt(text, at)) longest = std::max(longest, label.size);
  return longest;
}

std::optional<LineLabel> LabelAt(std::u16string_view text, std::size_t at, std::size_t end) {
  LineLabel label;
  if (at < end && kLabelOpens.find(text[at]) != kLabelOpens.npos) label.open = text[at++];
  if (at >= end) return std::nullopt;
  const std::size_t behind = at + LongestLabel(text.substr(0, end), at);
  label.letter = {at, behind};
  const std::size_t after = SkipBlanks(text, behind, std::min(behind + 1, end));
  const bool isClosed = after < end && kLabelCloses.find(text[after]) != kLabelCloses.npos;
  label.close = isClosed ? TextSpan{after, after + 1} : TextSpan{behind, behind};
  const bool standsAlone = behind < end && IsBlank(text[behind]) && label.open == 0;
  if (!isClosed && !standsAlone && !IsSymbolLetter(text[at])) return std::nullopt;
  return behind > at + 1 || CanLabel(text[at]) ? std::optional(label) : std::nullopt;
}

}  // namespace

std::optional<LineLabel> LineLabelOf(std::u16string_view text, TextSpan line) {
  const std::size_t begin = SkipBlanks(text, line.begin, line.end);
  if (const auto label = LabelAt(text, begin, line.end)) return label;
  if (begin >= line.end || !IsOptionSign(text[begin])) return std::nullopt;
  return LabelAt(text, SkipBlanks(text, begin + 1, line.end), line.end);
}

}  // namespace quorvantis

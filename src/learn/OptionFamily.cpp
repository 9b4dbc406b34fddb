// SPDX-License-Identifier: MIT
#include "learn/OptionFamily.h"

#include "import/labels/LineText.h"
#include "import/prepare/PreparedLabels.h"
#include "learn/PatternText.h"

#include <algorithm>
#include <map>

namespace quorvantis {
namespace {

/// The labels of all questions, counted.
class FamilyCounting {
 public:
  FamilyCounting(std::u16string_view text, const std::vector<TextSpan>& bodies) {
    for (const TextSpan& body : bodies) {
      if (auto options = FindOptions(text, body)) found_.push_back(std::move(*options));
    }
    for (const OptionSequence& options : found_) ++alphabets_[options.alphabet];
  }

  OptionFamily Family() {
    OptionFamily family;
    std::map<std::size_t, std::size_t> sizes;
    for (const OptionSequence& options : found_) {
      if (IsRare(options.alphabet)) continue;
      family.alphabets.insert(options.alphabet);
      ++family.questions;
      ++sizes[std::min(options.labels.size(), std::size_t{5})];
      if (options.LineStarts() < options.labels.size()) ++family.inLines;
      for (const OptionLabel& label : options.labels) Add(label, options.alphabet, family);
    }
    const auto usual = std::ranges::max_element(sizes, {}, [](const auto& size) { return size.second; });
    if (usual != sizes.end()) family.most = usual->first;
    return family;
  }

 private:
  /// A single question of many with other letters has them in its text.
  bool IsRare(std::size_t alphabet) const {
    constexpr std::size_t kFewOf = 12;
    return alphabets_.at(alphabet) * kFewOf < found_.size();
  }

  static void Add(const OptionLabel& label, std::size_t alphabet, OptionFamily& family) {
    const bool isSymbol = OptionAlphabets()[alphabet].isSymbol;
    if (label.open != 0) {
      family.isBracketed = true;
      family.opens.insert(label.open);
    } else if (label.close != 0 || isSymbol) {
      family.isPlain = true;
    } else {
      family.isBare = true;
    }
    if (label.close != 0) family.closes.insert(label.close);
  }

  std::vector<OptionSequence> found_;
  std::map<std::size_t, std::size_t> alphabets_;  ///< how many questions each has
};

std::set<char16_t> LettersAt(std::size_t index, const std::set<std::size_t>& alphabets, bool symbols) {
  std::set<char16_t> letters;
  for (const std::size_t number : alphabets) {
    const OptionAlphabet& alphabet = OptionAlphabets()[number];
    if (alphabet.isSymbol != symbols) continue;
    if (index < alphabet.letters.size()) letters.insert(alphabet.letters[index]);
    if (index < alphabet.others.size() && alphabet.others[index] != u' ')
      letters.insert(alphabet.others[index]);
  }
  return letters;
}

/// One of the letters, or the word for the first letter of one of the alphabets.
std::u16string LetterPattern(const std::set<char16_t>& letters, const std::set<std::size_t>& alphabets) {
  std::set<std::u16string> ways{ClassPattern(letters)};
  for (const std::size_t alphabet : alphabets) {
    const std::u16string_view word = OptionAlphabets()[alphabet].firstAsWord;
    if (!word.empty()) ways.insert(LiteralPattern(word));
  }
  return OneOfPattern(ways);
}

}  // namespace

std::u16string OptionFamily::LabelPattern(std::size_t index, bool atLineStarts) const {
  const std::set<char16_t> letters = LettersAt(index, alphabets, false);
  const std::set<char16_t> symbols = LettersAt(index, alphabets, true);
  std::set<std::u16string> ways{LiteralPattern(PreparedOption(index))};
  const std::u16string letter = LetterPattern(letters, index == 0 ? alphabets : std::set<std::size_t>{});
  const std::u16string close = ClassPattern(closes);
  if (!letters.empty() && isPlain && !closes.empty())
    ways.insert((atLineStarts ? u"" : u"(?<![0-9A-Za-z\u00C0-\u04FF])") + letter + u"[ ]?" + close);
  if (!letters.empty() && isBracketed) ways.insert(ClassPattern(opens) + u"[ ]?" + letter + u"[ ]?" + close);
  if (!letters.empty() && isBare) {
    const bool isAlone = std::ranges::any_of(
        alphabets, [](std::size_t alphabet) { return OptionAlphabets()[alphabet].standsAlone; });
    ways.insert((isAlone ? u"(?:^|(?<=[ \\t\u3000]))" : u"^[ \\t]*") + letter + u"[ \\t\u00A0\u3000]");
  }
  if (!symbols.empty()) ways.insert(ClassPattern(symbols) + (closes.empty() ? u"" : close + u"?"));
  return (atLineStarts ? u"^[ \\t\u00A0\u3000]*" : u"") + OneOfPattern(ways);
}

std::u16string OptionFamily::Example() const {
  if (alphabets.empty()) return {};
  std::u16string example;
  if (!opens.empty()) example += *opens.begin();
  example += OptionAlphabets()[*alphabets.begin()].letters.front();
  if (!closes.empty()) example += *closes.begin();
  return example;
}

OptionFamily FindOptionFamily(std::u16string_view text, const std::vector<TextSpan>& bodies) {
  return FamilyCounting(text, bodies).Family();
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "learn/patterns/OptionFamily.h"

#include "import/labels/LineText.h"
#include "import/paper/PreparedLabels.h"
#include "learn/patterns/PatternText.h"
#include "text/NumberText.h"

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
      if (IsRare(options)) continue;
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
  /// A single question of many with other letters has them in its text. Two labels within a line, as "(1)"
  /// and "(2)", are parts of a text unless many questions have them.
  bool IsRare(const OptionSequence& options) const {
    constexpr std::size_t kFewOf = 12;
    constexpr std::size_t kFewWeakOf = 3;
    const bool isWeak = options.labels.size() == 2 && options.LineStarts() < 2;
    return alphabets_.at(options.alphabet) * (isWeak ? kFewWeakOf : kFewOf) < found_.size();
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

/// All ways in which the label of option `index` is written, in the alphabets of symbols or in the others.
std::set<std::u16string_view> FormsAt(std::size_t index, const std::set<std::size_t>& alphabets,
                                      bool symbols) {
  std::set<std::u16string_view> forms;
  for (const std::size_t number : alphabets) {
    const OptionAlphabet& alphabet = OptionAlphabets()[number];
    if (alphabet.isSymbol != symbols) continue;
    for (const std::u16string_view form : FormsOfLabel(alphabet, index)) forms.insert(form);
  }
  return forms;
}

/// One of the letters or words.
std::u16string LetterPattern(const std::set<std::u16string_view>& forms) {
  std::set<std::u16string> ways;
  std::set<char16_t> units;
  for (const std::u16string_view form : forms) {
    if (form.size() == 1)
      units.insert(form[0]);
    else
      ways.insert(LiteralPattern(form));
  }
  if (!units.empty()) ways.insert(ClassPattern(units));
  return OneOfPattern(ways);
}

/// Two blanks, or a wide one, before a label within a line, or the beginning of the line.
constexpr std::u16string_view kSetOff = u"(?:^[ \\t\u3000]*|(?<=[ \u00A0][ \u00A0])|(?<=[\\t\u3000]))";

/// Within a line, "2.5" is a number.
std::u16string_view NoDecimal(const std::set<std::u16string_view>& letters, LabelPlaces places) {
  const auto isDigit = [](std::u16string_view form) { return IsDigit(form[0]); };
  const bool canBe =
      places != LabelPlaces::LineStarts && std::any_of(letters.begin(), letters.end(), isDigit);
  return canBe ? u"(?<![.,:](?=[0-9]))" : u"";
}

/// What must precede a label of that kind; nothing where its place is told already.
std::u16string BeginOf(const std::set<char16_t>& closes, LabelPlaces places) {
  if (places != LabelPlaces::Anywhere) return {};
  const auto isWeak = [](char16_t close) { return kWeakLabelCloses.find(close) != kWeakLabelCloses.npos; };
  const bool areWeak = std::all_of(closes.begin(), closes.end(), isWeak);
  return areWeak ? std::u16string(kSetOff) : u"(?<![0-9A-Za-z\u00C0-\u04FF])";
}

/// What must precede any label of a paper.
std::u16string_view PlacePattern(LabelPlaces places) {
  if (places == LabelPlaces::LineStarts) return u"^[ \\t\u00A0\u3000]*";
  return places == LabelPlaces::SetOff ? kSetOff : std::u16string_view();
}

}  // namespace

std::u16string OptionFamily::LabelPattern(std::size_t index, LabelPlaces places) const {
  const std::set<std::u16string_view> letters = FormsAt(index, alphabets, false);
  const std::set<std::u16string_view> symbols = FormsAt(index, alphabets, true);
  std::set<std::u16string> ways{LiteralPattern(PreparedOption(index))};
  const std::u16string letter = LetterPattern(letters);
  const std::u16string close = ClassPattern(closes);
  if (!letters.empty() && isPlain && !closes.empty())
    ways.insert(BeginOf(closes, places) + letter + u"[ ]?" + close +
                std::u16string(NoDecimal(letters, places)));
  if (!letters.empty() && isBracketed) ways.insert(ClassPattern(opens) + u"[ ]?" + letter + u"[ ]?" + close);
  if (!letters.empty() && isBare) {
    const bool isAlone = std::ranges::any_of(
        alphabets, [](std::size_t alphabet) { return OptionAlphabets()[alphabet].standsAlone; });
    const std::u16string begin = isAlone ? u"(?:^|(?<=[ \\t\u3000]))" : std::u16string(kSetOff);
    ways.insert((places == LabelPlaces::Anywhere ? begin : u"") + letter + u"[ \\t\u00A0\u3000]");
  }
  if (!symbols.empty()) ways.insert(LetterPattern(symbols) + (closes.empty() ? u"" : close + u"?"));
  return std::u16string(PlacePattern(places)) + OneOfPattern(ways);
}

std::u16string OptionFamily::Example() const {
  if (alphabets.empty()) return {};
  std::u16string example;
  if (!opens.empty()) example += *opens.begin();
  example += FormsOfLabel(OptionAlphabets()[*alphabets.begin()], 0).front();
  if (!closes.empty()) example += *closes.begin();
  return example;
}

OptionFamily FindOptionFamily(std::u16string_view text, const std::vector<TextSpan>& bodies) {
  return FamilyCounting(text, bodies).Family();
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "learn/patterns/NumberFamilies.h"

#include "import/labels/LineText.h"
#include "import/lines/AnswerHeadings.h"
#include "learn/patterns/PatternText.h"
#include "text/AsciiCase.h"

#include <algorithm>
#include <functional>
#include <map>
#include <tuple>

namespace quorvantis {
namespace {

constexpr std::u16string_view kOpens = u"(（[【〔〈";
constexpr std::u16string_view kCloses = u".)）．、:：】］]〕〉,，。।-–—/°º";
/// Words that may follow a number: "第1题", "1번".
constexpr std::u16string_view kCloseWords = u"题題問问번문제道小";

bool Holds(std::u16string_view units, char16_t unit) {
  return units.find(unit) != units.npos;
}

/// Answers that teachers put before a number without brackets.
constexpr std::u16string_view kBareKeys = u"TFVXRABCDE√×✓✗✔✘○对错対";

/// Words between the number of a question and how many there are.
constexpr std::u16string_view kOfWords[] = {u"of", u"von", u"de", u"sur",  u"di", u"van", u"av",
                                            u"af", u"z",   u"ze", u"dari", u"из", u"з",   u"/"};
constexpr std::u16string_view kTailOpens = u"(（[【";
constexpr std::u16string_view kTailCloses = u")）]】";

/// What ends the line of a number: how many there are, points in brackets, or both.
std::u16string TailPattern() {
  std::set<std::u16string> words;
  for (const std::u16string_view word : kOfWords) words.emplace(word);
  return u"(?:(?:[ ]*" + OneOfPattern(words) +
         u"[ ]*[0-9]{1,3})?[ .:]*(?:[(（\\[【][^()（）\\[\\]【】\\r\\n]{1,48}[)）\\]】])?[ \\t]*$)?";
}

/// A letter of any script, as words in front of numbers have them.
bool IsLetter(char16_t unit) {
  if (unit < 0x80) return (unit | 0x20) >= u'a' && (unit | 0x20) <= u'z';
  return unit >= 0xC0 && !(unit >= 0x2000 && unit < 0x3040) && unit < 0xFB00;
}

/// Reads the labels of one line.
class LabelReading {
 public:
  LabelReading(std::u16string_view text, TextSpan line, std::size_t mostDigits)
      : text_(text.substr(0, line.end)),
        mostDigits_(mostDigits),
        begin_(SkipBlanks(text, line.begin, line.end)) {}

  std::vector<NumberLabel> Labels() {
    const std::size_t lineBegin = begin_;
    begin_ = AfterKey(begin_);
    isAfterKey_ = begin_ > lineBegin;
    Read({}, begin_);
    if (!isAfterKey_) ReadBehindBareKey();
    // Words in front of the number, as few as possible.
    constexpr std::size_t kLongestPrefix = 24;
    for (std::size_t at = begin_; at < std::min(text_.size(), begin_ + kLongestPrefix); ++at) {
      if (!IsLetter(text_[at]) && !Holds(u" .#№°º'’\u00A0*&", text_[at])) break;
      const std::size_t next = SkipBlanks(text_, at + 1, text_.size());
      const bool isApart = next > at + 1 || !IsLetter(text_[at]);
      if (IsNumberHere(next) && (isApart || IsDigitHere(next))) {
        std::u16string prefix(text_.substr(begin_, next - begin_));
        while (!prefix.empty() && IsBlank(prefix.back())) prefix.pop_back();
        if (IsPrefix(prefix)) Read(prefix, next);
        break;
      }
    }
    return std::move(labels_);
  }

 private:
  /// Where the label begins if the letter of the answer stands in brackets before it: "(B) 1."
  std::size_t AfterKey(std::size_t at) const {
    const std::size_t end = std::max(AfterBrackets(at), AfterLine(at));
    const std::size_t next = SkipBlanks(text_, end, text_.size());
    return end > at && IsNumberHere(next) ? next : at;
  }

  /// "T  1." may be the answer of question 1, or the first number of kind "T".
  void ReadBehindBareKey() {
    const std::size_t begin = begin_;
    if (begin + 1 >= text_.size() || !Holds(kBareKeys, text_[begin]) || !IsBlank(text_[begin + 1])) return;
    begin_ = SkipBlanks(text_, begin + 1, text_.size());
    isAfterKey_ = true;
    if (IsDigitHere(begin_)) Read({}, begin_);
    begin_ = begin;
    isAfterKey_ = false;
  }

  /// Behind "(B)", "(√)" or "( )"; `at` if there is none.
  std::size_t AfterBrackets(std::size_t at) const {
    constexpr std::size_t kLongestKey = 4;
    constexpr std::size_t kMostBlanks = 16;
    if (at >= text_.size() || !Holds(u"(（[", text_[at])) return at;
    const std::size_t end = text_.find_first_of(u"()（）[]", at + 1);
    if (end == text_.npos || !Holds(u")）]", text_[end]) || end - at > kMostBlanks + kLongestKey) return at;
    return Trimmed(text_, {at + 1, end}).Size() < kLongestKey ? end + 1 : at;
  }

  /// Behind "___" or "__B__"; `at` if there is none.
  std::size_t AfterLine(std::size_t at) const {
    std::size_t end = at;
    while (end < text_.size() && text_[end] == u'_') ++end;
    if (end < at + 2) return at;
    if (end < text_.size() && (text_[end] | 0x20) >= u'a' && (text_[end] | 0x20) <= u'z') ++end;
    while (end < text_.size() && text_[end] == u'_') ++end;
    return end;
  }

  bool IsNumberHere(std::size_t at) const {
    if (at < text_.size() && Holds(kOpens, text_[at])) ++at;
    const std::vector<Numeral> numerals = NumeralsAt(text_, at, mostDigits_);
    return std::ranges::any_of(numerals, [&](const Numeral& numeral) {
      const bool isRoman = numeral.kind == NumeralKind::UpperRoman || numeral.kind == NumeralKind::LowerRoman;
      const std::size_t end = at + numeral.size;
      return !isRoman || end >= text_.size() || !IsLetter(text_[end]);
    });
  }

  /// A word, perhaps behind a sign, or a sign for numbers.
  static bool IsPrefix(std::u16string_view prefix) {
    if (prefix == u"№" || prefix == u"#") return true;
    const std::size_t first = prefix.find_first_not_of(u"#№*& ");
    return first != prefix.npos && IsLetter(prefix[first]);
  }

  /// Numbers of letters, as "II", need a blank before them.
  bool IsDigitHere(std::size_t at) const {
    const std::vector<Numeral> numerals = NumeralsAt(text_, at, mostDigits_);
    return std::ranges::any_of(numerals, [](const Numeral& numeral) { return IsDecimal(numeral.kind); });
  }

  void Read(const std::u16string& prefix, std::size_t at) {
    NumberLabel label;
    label.prefix = prefix;
    label.isAfterKey = isAfterKey_;
    std::size_t place = at;
    if (place < text_.size() && Holds(kOpens, text_[place])) label.open = text_[place++];
    place = SkipBlanks(text_, place, text_.size());
    ReadSectioned(label, place);
    for (const Numeral& numeral : NumeralsAt(text_, place, mostDigits_))
      Add(label, numeral, place + numeral.size);
  }

  /// "2.3" numbers question 3 of section 2, unless it is an amount: then a family of such labels does not
  /// rise.
  void ReadSectioned(NumberLabel label, std::size_t place) {
    constexpr int kMostSections = 2;
    const SectionedNumeral number = SectionedNumeralAt(text_, place);
    if (number.sections == 0 || number.sections > kMostSections) return;
    label.section = text_.substr(place, number.last - place);
    for (const Numeral& numeral : NumeralsAt(text_, number.last, kUsualDigits)) {
      if (numeral.kind == NumeralKind::Decimal) Add(label, numeral, number.end);
    }
  }

  void Add(NumberLabel label, const Numeral& numeral, std::size_t end) {
    label.kind = numeral.kind;
    label.value = numeral.value;
    std::size_t at = label.open != 0 ? SkipBlanks(text_, end, text_.size()) : end;
    constexpr std::size_t kLongestClose = 3;
    const std::size_t closeBegin = at;
    while (at < text_.size() && at - closeBegin < kLongestClose &&
           (Holds(kCloses, text_[at]) || (at == closeBegin && Holds(kCloseWords, text_[at]))))
      ++at;
    label.close = text_.substr(closeBegin, at - closeBegin);
    // "1 ." has its dot apart.
    if (label.close.empty() && at + 1 < text_.size() && text_[at] == u' ' &&
        Holds(u".):、．", text_[at + 1])) {
      label.close = std::u16string(1, text_[at + 1]);
      at += 2;
    }
    const bool isSymbol = numeral.kind == NumeralKind::Circled || numeral.kind == NumeralKind::InBrackets ||
                          numeral.kind == NumeralKind::WithDot;
    const bool endsHere = at >= text_.size() || IsBlank(text_[at]);
    if (label.close.empty() && !isSymbol) {
      if (label.open != 0 || !endsHere) return;
      label.isSpaced = label.prefix.empty() && label.section.empty();
    }
    if (IsDecimal(label.kind) && label.close == u"." && at < text_.size() && IsDigitUnit(text_[at])) return;
    label.hasTail = IsTail(text_.substr(at));
    label.place = {begin_, at};
    labels_.push_back(std::move(label));
  }

  /// Whether nothing but " of 5" or "(2 points)", or both, ends the line.
  static bool IsTail(std::u16string_view rest) {
    TextSpan tail = Trimmed(rest, {0, rest.size()});
    if (tail.IsEmpty()) return false;
    if (Holds(kTailCloses, rest[tail.end - 1])) {
      constexpr std::size_t kLongestPoints = 48;
      const std::size_t open = rest.find_last_of(kTailOpens, tail.end - 1);
      if (open == rest.npos || open < tail.begin || tail.end - open > kLongestPoints) return false;
      const bool hasNumber = std::ranges::any_of(TextSpan{open, tail.end}.Of(rest), IsDigitUnit);
      tail = Trimmed(rest, {tail.begin, open});
      if (tail.IsEmpty() || !hasNumber) return hasNumber;
    }
    const std::u16string_view whole = tail.Of(rest);
    const std::size_t digits = std::min(whole.find_first_of(u"0123456789"), whole.size());
    const std::u16string_view word = Trimmed(whole, {0, digits}).Of(whole);
    return std::ranges::all_of(whole.substr(digits), IsDigitUnit) && digits < whole.size() &&
           std::ranges::find(kOfWords, word) != std::end(kOfWords);
  }

  static bool IsDecimal(NumeralKind kind) { return kind <= NumeralKind::Thai; }
  static bool IsDigitUnit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

  std::u16string_view text_;
  std::size_t mostDigits_;
  std::size_t begin_;
  bool isAfterKey_ = false;
  std::vector<NumberLabel> labels_;
};

bool IsBeyondUsual(const NumberLabel& label) {
  constexpr int kLargestUsual = 999;
  return label.value > kLargestUsual;
}

std::ptrdiff_t SectionsOf(const NumberLabel& label) {
  return std::ranges::count(label.section, u'.');
}

using FamilyKey = std::tuple<std::u16string, bool, NumeralKind, bool, std::ptrdiff_t>;

FamilyKey KeyOf(const NumberLabel& label) {
  std::u16string prefix = AsciiLower(label.prefix);
  std::erase_if(prefix, IsBlank);
  return {prefix, label.open != 0, label.kind, label.isSpaced, SectionsOf(label)};
}

/// Whether numbers beyond three digits are those of questions: one follows on the other, behind many others.
bool CountsToThousands(const std::vector<NumberLabel>& labels) {
  constexpr std::ptrdiff_t kManyOthers = 200;
  constexpr std::size_t kFewest = 3;
  std::size_t beyond = 0;
  std::size_t following = 0;
  for (std::size_t i = 1; i < labels.size(); ++i) {
    if (!IsBeyondUsual(labels[i])) continue;
    ++beyond;
    following += labels[i].value == labels[i - 1].value + 1 ? 1 : 0;
  }
  return following >= kFewest && following * 5 >= beyond * 4 &&
         std::ranges::count_if(labels, std::not_fn(IsBeyondUsual)) >= kManyOthers;
}

/// A family of labels that are written alike, without those that are no numbers of questions, as years are.
NumberFamily FamilyOf(std::vector<NumberLabel> labels) {
  NumberFamily family;
  if (CountsToThousands(labels))
    family.mostDigits = kLongNumberDigits;
  else
    std::erase_if(labels, IsBeyondUsual);
  for (const NumberLabel& label : labels) {
    family.prefix = label.prefix;
    family.isBracketed = label.open != 0;
    if (label.open != 0) family.opens.insert(label.open);
    family.kind = label.kind;
    family.sections = SectionsOf(label);
    family.isSpaced = label.isSpaced;
    family.isAfterKeys = family.isAfterKeys || label.isAfterKey;
    family.tails += label.hasTail ? 1 : 0;
    family.closes.insert(label.close);
  }
  family.labels = std::move(labels);
  return family;
}

/// How well the numbers follow each other.
void Judge(NumberFamily& family) {
  int good = 0;
  int before = 0;
  for (const NumberLabel& label : family.labels) {
    const bool follows = label.value == before + 1;
    const bool restarts = label.value == 1 && before > 1;
    // One that was forgotten is a mistake that people make.
    const bool skips = label.value == before + 2 && before > 0;
    if (follows || restarts || skips) ++good;
    if (restarts) ++family.restarts;
    before = label.value;
  }
  family.rising = static_cast<double>(good) / static_cast<double>(family.labels.size());
}

/// "1." may number the questions and "1)" their options, so each is also a family by itself.
void AddByCloses(const NumberFamily& family, std::vector<NumberFamily>& found) {
  for (const std::u16string& close : family.closes) {
    NumberFamily one = family;
    one.closes = {close};
    std::erase_if(one.labels, [&close](const NumberLabel& label) { return label.close != close; });
    Judge(one);
    if (one.labels.size() > 1) found.push_back(std::move(one));
  }
}

/// Numbers that begin anew all the time are those of options.
double LikelinessOfNumbers(const NumberFamily& family) {
  const auto count = static_cast<double>(family.labels.size());
  const double run = count / (family.restarts + 1);
  constexpr double kShortRun = 5.5;
  const double doubt = family.restarts >= 2 && run < kShortRun && family.sections == 0 ? 0.3 : 1.0;
  const double spaced = family.isSpaced ? 0.5 : 1.0;
  return count * family.rising * family.rising * doubt * spaced;
}

/// Whether a number goes on from the one before its place, and that behind it goes on from it.
bool FillsGap(const NumberLabel& label, const NumberFamily& family) {
  const auto behind = std::ranges::upper_bound(family.labels, label.place.begin, {},
                                               [](const NumberLabel& one) { return one.place.begin; });
  if (behind == family.labels.begin() || std::prev(behind)->value + 1 != label.value) return false;
  return behind == family.labels.end() || behind->value == label.value + 1;
}

/// A number that is written like no other comes right behind the likeliest family, if it is missing there.
void AddFillers(std::vector<NumberFamily> singles, std::vector<NumberFamily>& found) {
  if (found.empty()) return;
  std::erase_if(singles, [&found](const NumberFamily& single) {
    return !FillsGap(single.labels.front(), found.front());
  });
  found.insert(found.begin() + 1, singles.begin(), singles.end());
}

}  // namespace

std::vector<NumberLabel> NumberLabelsAt(std::u16string_view text, TextSpan line) {
  return LabelReading(text, line, kUsualDigits).Labels();
}

std::vector<NumberFamily> FindNumberFamilies(std::u16string_view text) {
  std::map<FamilyKey, std::vector<NumberLabel>> styles;
  constexpr std::size_t kFewLines = 12;
  const std::vector<TextSpan> lines = LinesOf(text, {0, text.size()});
  for (const TextSpan& line : lines) {
    for (NumberLabel& label : LabelReading(text, line, kLongNumberDigits).Labels()) {
      // "Answer 3:" is no number of a question.
      if (AnswerHeadingOf(label.prefix) != AnswerHeading::Clear)
        styles[KeyOf(label)].push_back(std::move(label));
    }
  }
  std::vector<NumberFamily> found;
  std::vector<NumberFamily> singles;
  for (auto& [key, labels] : styles) {
    NumberFamily family = FamilyOf(std::move(labels));
    if (family.labels.empty()) continue;
    if (family.closes.size() > 1) AddByCloses(family, found);
    Judge(family);
    const bool isOnly = family.labels.front().value == 1 && lines.size() <= kFewLines;
    (family.labels.size() > 1 || isOnly ? found : singles).push_back(std::move(family));
  }
  std::ranges::stable_sort(found, std::greater<>(), LikelinessOfNumbers);
  AddFillers(std::move(singles), found);
  return found;
}

std::u16string NumberFamily::Pattern() const {
  // A "!" before the label stays apart from the marker, which is made of "!".
  std::u16string pattern = u"(?<!!)\\s*^[ \\t\u00A0\u3000]*";
  if (isAfterKeys)
    pattern +=
        u"(?:(?:[(（\\[][ \\t\u3000]{0,9}[^()（）\\[\\]\\r\\n]{0,3}[ "
        u"\\t\u3000]{0,9}[)）\\]]|_{2,}[A-Za-z]?_*|[" +
        std::u16string(kBareKeys) + u"](?=[ \\t]))[ \\t\u3000]*)?";
  if (!prefix.empty()) pattern += u"(?i:" + LiteralPattern(prefix) + u")[ \\t\u00A0\u3000]*";
  if (isBracketed) pattern += ClassPattern(opens) + u"[ \\t\u3000]*";
  for (std::ptrdiff_t i = 0; i < sections; ++i) pattern += u"[0-9]{1,3}\\.";
  pattern += NumeralPattern(kind, mostDigits);
  if (isBracketed) pattern += u"[ \\t\u3000]*";
  if (isSpaced) return pattern + u"[ \\t\u00A0\u3000]+(?=\\S)";
  std::set<std::u16string> patterns;
  std::set<char16_t> units;
  for (const std::u16string& close : closes) {
    if (close.size() == 1)
      units.insert(close[0]);
    else if (close.empty() && sections > 0)
      patterns.insert(u"(?=[ \\t\u00A0\u3000]|$)");
    else
      patterns.insert(LiteralPattern(close));
  }
  if (!units.empty()) patterns.insert((isBracketed ? u"" : u"[ ]?") + ClassPattern(units));
  pattern += OneOfPattern(patterns);
  if (kind == NumeralKind::Decimal && units.contains(u'.')) pattern += u"(?![0-9])";
  if (tails * 2 > labels.size()) pattern += TailPattern();
  return pattern + u"\\s*";
}

std::u16string NumberFamily::Example(std::u16string_view text) const {
  if (labels.empty()) return {};
  const TextSpan place = labels.front().place;
  return std::u16string(place.Of(text));
}

}  // namespace quorvantis

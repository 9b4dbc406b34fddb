// SPDX-License-Identifier: MIT
#include "check/wording/NamedQuestions.h"

#include "model/ExamLimits.h"
#include "text/ScriptDigits.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

bool IsAllDigits(std::u16string_view word) {
  return !word.empty() &&
         std::all_of(word.begin(), word.end(), [](char16_t unit) { return DigitValueOf(unit) >= 0; });
}

/// Collects numbers, each once.
class NumberList {
 public:
  void Add(int number) {
    if (std::find(numbers_.begin(), numbers_.end(), number) == numbers_.end()) numbers_.push_back(number);
  }
  void AddRange(int first, int last) {
    for (int number = first; number <= last; ++number) Add(number);
  }
  std::vector<int> Take() { return std::move(numbers_); }

 private:
  std::vector<int> numbers_;
};

/// "Two", "الثاني"; nothing for other words.
std::optional<int> SpelledNumber(const WordedText& text, std::size_t index) {
  for (int number = 1; number <= 10; ++number) {
    const auto use = static_cast<WordUse>(static_cast<int>(WordUse::One) + number - 1);
    if (text.Is(index, {use})) return number;
  }
  return std::nullopt;
}

bool IsDash(char16_t unit) {
  return unit == u'-' || unit == u'–' || unit == u'—' || unit == u'~' || unit == u'～';
}

/// Whether the text goes on with something else behind word `index`: "question two." but not "question two
/// friends".
bool EndsThere(const WordedText& text, std::size_t index) {
  return text.Gap(index) != u" " || index + 1 == text.WordCount() ||
         text.Is(index + 1, {WordUse::NumberLink, WordUse::Reference, WordUse::AfterPicture});
}

/// The numbers in digits at word `index` and those linked with it: "3", "3-5", "3 and 4", "3, 4 and 5".
void TakeDigits(const WordedText& text, std::size_t index, NumberList& numbers) {
  constexpr std::u16string_view kLists = u",،、&/";
  std::optional<int> last = QuestionNumberOf(text.Word(index));
  while (last) {
    numbers.Add(*last);
    const char16_t sign = text.After(index);
    const bool isLinked = text.Is(index + 1, {WordUse::NumberLink});
    if (!isLinked && !IsDash(sign) && (sign == u'\0' || kLists.find(sign) == kLists.npos)) return;
    const std::size_t next = index + (isLinked ? 2 : 1);
    const std::optional<int> number = QuestionNumberOf(text.Word(next));
    const bool isRange = number && (IsDash(sign) || text.Is(index + 1, {WordUse::UpTo}));
    if (isRange) numbers.AddRange(*last, *number);
    last = number;
    index = next;
  }
}

/// "Two", "two and three" at word `index`. "One" may be a pronoun, and so may any number of a text that
/// begins with "Question two witnesses".
void TakeSpelled(const WordedText& text, std::size_t index, NumberList& numbers) {
  auto number = SpelledNumber(text, index);
  if (!number || ((*number == 1 || index == 1) && !EndsThere(text, index))) return;
  for (; number; number = SpelledNumber(text, index)) {
    numbers.Add(*number);
    if (!text.Is(index + 1, {WordUse::NumberLink})) return;
    index += 2;
  }
}

bool ConsistsOf(std::u16string_view gap, std::u16string_view units) {
  return gap.find_first_not_of(units) == gap.npos;
}

/// The word after signs such as "no." that begin at word `index`.
std::size_t BehindNumberSigns(const WordedText& text, std::size_t index) {
  while (text.Is(index, {WordUse::NumberSign}) && index + 1 < text.WordCount() &&
         ConsistsOf(text.Gap(index), u" .°#("))
    ++index;
  return index;
}

/// "Question 3", "question no. 3", "question (3)", "question two".
void TakeBehindNoun(const WordedText& text, std::size_t noun, NumberList& numbers) {
  if (noun + 1 >= text.WordCount() || !ConsistsOf(text.Gap(noun), u" ([#№°.")) return;
  const bool isAbbreviated = text.Gap(noun).starts_with(u'.');
  if (isAbbreviated && text.Folding(noun).Size() > 4) return;  // the end of a sentence
  const std::size_t number = BehindNumberSigns(text, noun + 1);
  TakeDigits(text, number, numbers);
  if (text.Gap(number - 1) == u" ") TakeSpelled(text, number, numbers);
}

/// "3. soru", "ikinci soru", "3번 문제".
void TakeBeforeNoun(const WordedText& text, std::size_t index, NumberList& numbers) {
  const std::u16string_view word = text.Word(index);
  if (text.Is(index + 1, {WordUse::NounAfterNumber})) {
    const auto digits = QuestionNumberOf(word);
    const auto spelled = SpelledNumber(text, index);
    if (digits && text.Gap(index).starts_with(u'.')) numbers.Add(*digits);
    if (spelled && text.Gap(index) == u" ") numbers.Add(*spelled);
  }
  constexpr std::u16string_view kKoreanSign = u"번";
  if (!word.ends_with(kKoreanSign)) return;
  const auto number = QuestionNumberOf(word.substr(0, word.size() - 1));
  const std::u16string_view next = text.Word(index + 1);
  if (number && (next.starts_with(u"문제") || next.starts_with(u"문항"))) numbers.Add(*number);
}

bool IsReferredTo(const WordedText& text, std::size_t index) {
  return index > 0 && text.Is(index - 1, {WordUse::Reference});
}

/// The length of the noun of a word such as "q2"; 0 if it has none.
std::size_t ShortNounOf(const WordedText& text, std::size_t index) {
  const std::u16string_view word = text.Word(index);
  if (text.Is(index, {WordUse::ShortNoun})) return word.size();
  if (DigitValueOf(word.back()) < 0) return 0;
  const std::size_t letters = std::min(word.find_first_of(u"0123456789"), word.size());
  return KnownWords::Instance().UsesOf(word.substr(0, letters)).Has(WordUse::ShortNoun) ? letters : 0;
}

/// "In Q2", "(Q. 2)". Not "Q3 2024", a quarter, nor "the value of Q1", a quartile. `goesOn` if others are
/// named right before. The last word of it, or nothing.
std::optional<std::size_t> TakeShort(const WordedText& text, std::size_t index, bool goesOn,
                                     NumberList& numbers) {
  const std::size_t letters = ShortNounOf(text, index);
  if (letters == 0) return std::nullopt;
  const bool isMeant = goesOn || index == 0 || IsReferredTo(text, index) || text.Before(index) == u'(';
  const std::u16string_view word = text.Word(index);
  const bool isApart = letters == word.size();
  const bool isNear = !isApart || (index + 1 < text.WordCount() && ConsistsOf(text.Gap(index), u" ."));
  if (!isMeant || !isNear) return std::nullopt;
  const std::size_t last = isApart ? index + 1 : index;
  const auto number = QuestionNumberOf(isApart ? text.Word(last) : word.substr(letters));
  constexpr std::size_t kYear = 4;  // digits
  const std::u16string_view next = text.Word(last + 1);
  if (!number || (next.size() == kYear && IsAllDigits(next))) return std::nullopt;
  numbers.Add(*number);
  return last;
}

/// "See no. 2", "см. № 2". Not "a no. 2 pencil" nor "in no. 10 Downing Street".
void TakeSigned(const WordedText& text, std::size_t index, NumberList& numbers) {
  if (index == 0 || !text.Is(index - 1, {WordUse::Reference})) return;
  const bool isAfterSign = text.Gap(index - 1).find(u'№') != std::u16string_view::npos;
  const std::size_t number = isAfterSign ? index : BehindNumberSigns(text, index);
  if ((isAfterSign || number > index) && EndsThere(text, number)) TakeDigits(text, number, numbers);
}

/// A number in digits or Chinese up to 99 at the front of a text, and its length; 0 and 0 if there is none.
std::pair<int, std::size_t> NumberInFront(std::u16string_view text) {
  std::size_t digits = 0;
  while (digits < text.size() && DigitValueOf(text[digits]) >= 0) ++digits;
  if (digits > 0) return {QuestionNumberOf(text.substr(0, digits)).value_or(0), digits};
  constexpr std::u16string_view kOnes = u"一二三四五六七八九";
  const auto ones = [text, kOnes](std::size_t at) {
    const std::size_t found = at < text.size() ? kOnes.find(text[at]) : kOnes.npos;
    return found == kOnes.npos ? 0 : static_cast<int>(found) + 1;
  };
  std::size_t length = ones(0) > 0 ? 1 : 0;
  int number = ones(0);
  if (length < text.size() && text[length] == u'十') {
    number = std::max(number, 1) * 10 + ones(length + 1);
    length += ones(length + 1) > 0 ? 2 : 1;
  }
  return {number, length};
}

std::size_t SkipUnits(std::u16string_view text, std::size_t at, std::u16string_view units) {
  return std::min(text.find_first_not_of(units, at), text.size());
}

/// "第3题", "第（3）题", "第三、四题", "第3-5题", behind the ordinal sign at `begin`.
void TakeOrdinal(std::u16string_view folded, std::size_t begin, NumberList& numbers) {
  constexpr std::u16string_view kAround = u" ()（）";
  constexpr std::u16string_view kRange = u"-–—~～至到";
  constexpr std::u16string_view kList = u"、,，和与與及";
  std::vector<std::pair<int, bool>> found;  // with whether it ends a range
  bool isRange = false;
  for (std::size_t at = SkipUnits(folded, begin + 1, kAround); at < folded.size();) {
    const auto [number, length] = NumberInFront(folded.substr(at));
    if (number == 0) return;
    found.emplace_back(number, isRange);
    at = SkipUnits(folded, at + length, kAround);
    if (at == folded.size()) return;
    isRange = kRange.find(folded[at]) != kRange.npos;
    if (!isRange && kList.find(folded[at]) == kList.npos) {
      const auto nouns = KnownWords::Instance().WordsFor(WordUse::NounBehindNumber);
      const auto isHere = [&](std::u16string_view noun) { return folded.substr(at).starts_with(noun); };
      if (std::none_of(nouns.begin(), nouns.end(), isHere)) return;
      break;
    }
    at = SkipUnits(folded, at + 1, u" ()（）第");
  }
  for (std::size_t i = 0; i < found.size(); ++i) {
    if (found[i].second) numbers.AddRange(found[i - 1].first, found[i].first);
    numbers.Add(found[i].first);
  }
}

/// Of Chinese and Japanese: "第3题", "問2".
void TakeWithoutBlanks(const WordedText& text, NumberList& numbers) {
  const std::u16string_view folded = text.Folded();
  for (std::size_t at = folded.find(u'第'); at != folded.npos; at = folded.find(u'第', at + 1))
    TakeOrdinal(folded, at, numbers);
  for (const WordedText::FoundPhrase& phrase : text.Phrases()) {
    if (!phrase.uses.Has(WordUse::NounAtNumber)) continue;
    const bool isBehindNumber = phrase.place.begin > 0 && DigitValueOf(folded[phrase.place.begin - 1]) >= 0;
    const std::size_t at = SkipUnits(folded, phrase.place.end, u" (（");
    if (isBehindNumber || at == folded.size() || DigitValueOf(folded[at]) < 0) continue;
    const int number = NumberInFront(folded.substr(at)).first;
    if (number > 0) numbers.Add(number);
  }
}

constexpr WordUses kSpelledNumbers{WordUse::One, WordUse::Two,   WordUse::Three, WordUse::Four, WordUse::Five,
                                   WordUse::Six, WordUse::Seven, WordUse::Eight, WordUse::Nine, WordUse::Ten};

void TakeWithBlanks(const WordedText& text, NumberList& numbers) {
  std::size_t afterShort = 0;  // the word after "Q2 and"
  for (std::size_t i = 0; i < text.WordCount(); ++i) {
    if (text.Is(i, {WordUse::QuestionNoun})) TakeBehindNoun(text, i, numbers);
    TakeBeforeNoun(text, i, numbers);
    TakeSigned(text, i, numbers);
    const auto lastShort = TakeShort(text, i, i > 0 && i == afterShort, numbers);
    if (lastShort && text.Is(*lastShort + 1, {WordUse::NumberLink})) afterShort = *lastShort + 2;
  }
}

}  // namespace

std::optional<int> QuestionNumberOf(std::u16string_view word) {
  constexpr std::size_t kMostDigits = 3;
  if (word.size() > kMostDigits || !IsAllDigits(word)) return std::nullopt;
  int number = 0;
  for (const char16_t unit : word) number = number * 10 + DigitValueOf(unit);
  return IsQuestionNumber(number) ? std::optional(number) : std::nullopt;
}

std::vector<int> NamedQuestionsIn(const WordedText& text) {
  NumberList numbers;
  if (text.HasDigits() || text.Has(kSpelledNumbers)) TakeWithBlanks(text, numbers);
  TakeWithoutBlanks(text, numbers);
  return numbers.Take();
}

}  // namespace quorvantis

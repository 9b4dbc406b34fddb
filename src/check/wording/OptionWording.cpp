// SPDX-License-Identifier: MIT
#include "check/wording/OptionWording.h"

#include "check/wording/OptionLabels.h"
#include "check/wording/WordedText.h"
#include "regex/WordBorders.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr WordUses kBesideOthers{WordUse::AloneOfOthers, WordUse::BesideLabel, WordUse::Company,
                                 WordUse::OptionNoun};

bool IsPunctuationAround(char16_t unit) {
  constexpr std::u16string_view kPunctuation = u" .,;:!()'\"-\u3002\uFF0C\uFF01\uFF08\uFF09\u060C\u2026";
  return kPunctuation.find(unit) != std::u16string_view::npos;
}

/// Whether the option says nothing beyond `span`, a part of the folded text, but words such as "the" and
/// "correct".
bool SaysOnly(const WordedText& option, const TextSpan& span) {
  for (std::size_t i = 0; i < option.WordCount(); ++i) {
    const TextSpan word = option.Folding(i);
    const bool isWithin = word.begin >= span.begin && word.end <= span.end;
    if (!isWithin && !option.Is(i, kBesideOthers)) return false;
  }
  const std::u16string_view folded = option.Folded();
  for (std::size_t at = 0; at < folded.size(); ++at) {
    if (!span.Contains(at) && !IsPartOfWord(folded[at]) && !IsPunctuationAround(folded[at])) return false;
  }
  return true;
}

bool IsAloneOfOthers(const WordedText& option) {
  if (!option.Has({WordUse::AloneOfOthers})) return false;
  for (std::size_t i = 0; i < option.WordCount(); ++i) {
    if (option.Is(i, {WordUse::AloneOfOthers}) && SaysOnly(option, option.Folding(i))) return true;
  }
  return std::any_of(option.Phrases().begin(), option.Phrases().end(),
                     [&option](const WordedText::FoundPhrase& phrase) {
                       return phrase.uses.Has(WordUse::AloneOfOthers) && SaysOnly(option, phrase.place);
                     });
}

bool IsLetterWord(const WordedText& text, std::size_t index) {
  const std::u16string_view word = text.Word(index);
  return word.size() == 1 && IsOptionLetter(word[0]);
}

/// Capital, or in brackets: a small letter alone is a word of many languages ("a", "e", "à").
bool IsNamedLetter(const WordedText& text, std::size_t index) {
  if (!IsLetterWord(text, index)) return false;
  if (text.After(index) == u')' || text.After(index) == u'）') return true;
  const std::u16string_view as = text.Written(index);
  return as != text.Word(index) || as[0] >= u'\u0600';
}

constexpr WordUses kBesideLetters{WordUse::Link, WordUse::BesideLabel, WordUse::Company, WordUse::OptionNoun};

/// Behind a noun of the subject, a letter is a part of a name: "vitamin A".
bool IsPartOfName(const WordedText& text, std::size_t index) {
  constexpr std::u16string_view kWithinName = u" ('\"-";
  if (index == 0 || text.Is(index - 1, kBesideLetters)) return false;
  return text.Gap(index - 1).find_first_not_of(kWithinName) == std::u16string_view::npos;
}

/// What stands between two words consists of brackets, commas and the like only, and has one of them.
bool AreListed(const WordedText& text, std::size_t index) {
  const std::u16string_view between = text.Gap(index);
  return between.find_first_not_of(u" ()（）[].,،、/&+-–;") == std::u16string_view::npos &&
         between.find_first_of(u",،、/&+;") != std::u16string_view::npos;
}

/// Arabic writes "and" at the front of the next word.
bool IsJoinedLetter(std::u16string_view word) {
  return word.size() == 2 && word[0] == u'و' && IsOptionLetter(word[1]);
}

/// Whether the letter at word `index` is linked with the next one: "A, B", "A and B", "la A y la B".
bool IsLinkedOn(const WordedText& text, std::size_t index) {
  if (IsJoinedLetter(text.Word(index + 1))) return true;
  bool isLinked = index + 1 < text.WordCount() && AreListed(text, index);
  for (std::size_t next = index + 1; next < text.WordCount(); ++next) {
    if (IsNamedLetter(text, next)) return isLinked;
    if (!text.Is(next, kBesideLetters)) return false;
    isLinked = isLinked || text.Is(next, {WordUse::Link});
  }
  return false;
}

bool NamesTwo(const WordedText& text) {
  bool goesOn = false;  // this letter belongs to those before
  bool isName = false;
  for (std::size_t i = 0; i + 1 < text.WordCount(); ++i) {
    if (!IsNamedLetter(text, i)) continue;
    if (!goesOn) isName = IsPartOfName(text, i);
    goesOn = IsLinkedOn(text, i);
    if (goesOn && !isName) return true;
  }
  return false;
}

/// "Answer C".
bool NamesOne(const WordedText& text) {
  for (std::size_t i = 1; i < text.WordCount(); ++i) {
    if (text.Is(i - 1, {WordUse::OptionNoun}) && IsNamedLetter(text, i)) return true;
  }
  return false;
}

/// "Only A": a letter after or before such a word, and nothing else that the option would say.
bool SaysOnlyALetter(const WordedText& text) {
  if (text.WordCount() != 2) return false;
  constexpr WordUses kBeside{WordUse::BesideLabel, WordUse::OptionNoun};
  return (IsNamedLetter(text, 1) && text.Is(0, kBeside)) || (IsNamedLetter(text, 0) && text.Is(1, kBeside));
}

bool IsLatin(char16_t unit) {
  return (unit >= u'a' && unit <= u'z') || (unit >= u'0' && unit <= u'9');
}

/// The word for `use` at the front, or at the end, of a text; empty if there is none.
std::u16string_view WordInFront(std::u16string_view text, WordUse use) {
  for (const std::u16string_view word : KnownWords::Instance().WordsFor(use)) {
    if (text.starts_with(word)) return word;
  }
  return {};
}

bool EndsWithWord(std::u16string_view text, WordUse use) {
  const auto words = KnownWords::Instance().WordsFor(use);
  return std::any_of(words.begin(), words.end(),
                     [text](std::u16string_view word) { return text.ends_with(word); });
}

std::u16string_view WithoutBlanksInFront(std::u16string_view text) {
  return text.substr(std::min(text.find_first_not_of(u' '), text.size()));
}

/// "A和B", "只有A", "A项": a letter at `place` without blanks between words; not "维生素A和D".
bool IsNamedWithoutBlanks(std::u16string_view folded, std::size_t place) {
  const std::u16string_view before = folded.substr(0, place);
  const std::u16string_view after = folded.substr(place + 1);
  if (!after.empty() && IsLatin(after[0])) return false;
  const bool isBehindWord = EndsWithWord(before, WordUse::BeforeLetter);
  const bool isFirst =
      before.empty() || IsPunctuationAround(before.back()) || EndsWithWord(before, WordUse::LinkOfLetters);
  if (!isBehindWord && !isFirst) return false;
  if (isBehindWord || !WordInFront(after, WordUse::AfterLetter).empty()) return true;
  const std::u16string_view rest = WithoutBlanksInFront(after);
  const std::u16string_view link = WordInFront(rest, WordUse::LinkOfLetters);
  const std::u16string_view next = WithoutBlanksInFront(rest.substr(link.size()));
  return !link.empty() && !next.empty() && IsOptionLetter(next[0]) && (next.size() == 1 || !IsLatin(next[1]));
}

bool NamesWithoutBlanks(std::u16string_view folded) {
  for (std::size_t i = 0; i < folded.size(); ++i) {
    if (IsOptionLetter(folded[i]) && IsNamedWithoutBlanks(folded, i)) return true;
  }
  return false;
}

bool NamesLetters(const WordedText& text) {
  return NamesTwo(text) || SaysOnlyALetter(text) || NamesOne(text) || NamesWithoutBlanks(text.Folded());
}

}  // namespace

bool SpeaksOfTheOthers(std::u16string_view option) {
  const WordedText text(option);
  return text.Has({WordUse::OfOthers}) || IsAloneOfOthers(text);
}

bool NamesOptions(std::u16string_view option) {
  return NamesLetters(WordedText(option));
}

bool NamesOptions(std::u16string_view option, std::u16string_view question) {
  const WordedText text(option);
  return NamesLetters(text) || NamesLabels(text, question);
}

bool NamesOptionsInText(std::u16string_view question) {
  return NamesOptionsInText(WordedText(question));
}

bool NamesOptionsInText(const WordedText& question) {
  if (!question.Has({WordUse::OptionNoun, WordUse::NounAtLetter})) return false;
  if (NamesOne(question)) return true;
  const std::u16string_view folded = question.Folded();
  return std::any_of(
      question.Phrases().begin(), question.Phrases().end(), [folded](const WordedText::FoundPhrase& phrase) {
        const std::size_t end = phrase.place.end;
        return phrase.uses.Has(WordUse::NounAtLetter) && end < folded.size() && IsOptionLetter(folded[end]);
      });
}

}  // namespace quorvantis

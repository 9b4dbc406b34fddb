// SPDX-License-Identifier: MIT
// The words by which questions speak of others, language by language. To add a language, write a table of
// rows such as those in EnglishWords.cpp, or add rows to one, and name a new table in KnownWords.cpp.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string_view>

namespace quorvantis {

/// What a word or phrase is for. Examples are in English.
enum class WordUse : std::uint8_t {
  // In options
  OfOthers,       ///< "all of the above", anywhere in an option
  AloneOfOthers,  ///< "both", "first two": the whole option, apart from words of Company
  BesideLabel,    ///< "only", "both": before or after the letter of another option
  Company,        ///< "the", "are", "correct": what else stands beside such words
  OptionNoun,     ///< "answer", as in "answer C"
  Link,           ///< "and", "nor": between letters

  // Names of questions
  QuestionNoun,     ///< "question", as in "question 3"
  NounAfterNumber,  ///< in languages that say "3. question"
  ShortNoun,        ///< "q", as in "Q2": only behind a Reference
  NumberSign,       ///< "no", as in "question no. 3"; without a noun only behind a Reference
  Reference,        ///< "see", "in"
  NumberLink,       ///< "and", "to": between numbers
  UpTo,             ///< "to": of these, those that make a range
  One,              ///< "one" as a number after "question", or "first" where a language puts it there;
  Two,              ///< likewise up to ten
  Three,
  Four,
  Five,
  Six,
  Seven,
  Eight,
  Nine,
  Ten,

  // In texts of questions
  FollowsOn,      ///< "the picture above", "previous question"
  PictureNoun,    ///< "picture"
  BeforePicture,  ///< "see", "this": at most two words before the noun
  AfterPicture,   ///< "below", "shows": right after it
  Picture,        ///< a picture by itself, in languages without blanks
  Negation,       ///< "not"

  // In languages without blanks, around a letter
  NounAtLetter,     ///< "option", right before a letter
  BeforeLetter,     ///< "only", likewise
  AfterLetter,      ///< "are right", right after one
  LinkOfLetters,    ///< "and", between two
  NounAtNumber,     ///< "question", right before a number
  NounBehindNumber  ///< "question", behind a number that has an ordinal sign before it
};

/// Words in lower case, without hyphens; phrases with single blanks, hyphens and apostrophes as they are.
struct WordRow {
  WordUse use;
  std::initializer_list<std::u16string_view> words;
};

using WordRows = std::span<const WordRow>;

WordRows EnglishWords();
WordRows GermanWords();
WordRows DutchWords();
WordRows FrenchWords();
WordRows SpanishWords();
WordRows PortugueseWords();
WordRows ItalianWords();
WordRows RomanianWords();
WordRows RussianWords();
WordRows UkrainianWords();
WordRows PolishWords();
WordRows OtherSlavicWords();  ///< Czech, Slovak, Bulgarian, Serbian
WordRows ArabicWords();
WordRows PersianWords();
WordRows HebrewWords();
WordRows ChineseWords();
WordRows JapaneseWords();
WordRows KoreanWords();
WordRows TurkishWords();
WordRows OtherWords();  ///< Hungarian, Indonesian, Vietnamese, Hindi, Scandinavian

}  // namespace quorvantis

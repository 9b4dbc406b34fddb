// SPDX-License-Identifier: MIT
#include "import/keys/KeyTokens.h"

#include "import/keys/KeyVersions.h"
#include "import/labels/LineText.h"
#include "import/labels/OptionAlphabets.h"
#include "import/lines/AnswerHeadings.h"
#include "import/lines/AnswerWords.h"
#include "import/lines/FoldedText.h"
#include "import/lines/JudgementWords.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr NumeralKind kKeyNumerals[] = {
    NumeralKind::Decimal,    NumeralKind::FullWidth, NumeralKind::ArabicIndic, NumeralKind::Persian,
    NumeralKind::Devanagari, NumeralKind::Bengali,   NumeralKind::Thai,        NumeralKind::Circled,
    NumeralKind::InBrackets, NumeralKind::WithDot};

/// Folded; what may stand before a number. Where a word begins another one, the longer one is first.
constexpr std::u16string_view kNumberPrefixes[] = {
    u"question", u"questão", u"quest.", u"frage",      u"aufgabe", u"вопрос",   u"задание",   u"завдання",
    u"питання",  u"въпрос",  u"задача", u"питање",     u"pitanje", u"сұрақ",    u"pregunta",  u"pergunta",
    u"domanda",  u"pytanie", u"otázka", u"vraag",      u"fråga",   u"spørsmål", u"spørgsmål", u"opgave",
    u"tehtävä",  u"kysymys", u"kérdés", u"întrebarea", u"soru",    u"soal",     u"nomor",     u"swali",
    u"câu hỏi",  u"câu",     u"bài",    u"item",       u"no.",     u"nr.",      u"nr",        u"no",
    u"nº",       u"n°",      u"№",      u"प्रश्न",       u"প্রশ্ন",    u"வினா",     u"السؤال",    u"سؤال",
    u"السوال",   u"سوال",    u"س",      u"שאלה",       u"ερώτηση", u"ερ.",      u"ข้อที่",       u"ข้อ",
    u"問題",     u"問",      u"问",     u"문제",       u"문",      u"第",       u"q",         u"#"};

/// Letters that papers number their parts with: "A1", "B2".
constexpr std::u16string_view kPartLetters = u"ABC\u0410\u0411\u0412\u0421";

constexpr std::u16string_view kRangeDashes = u"-–—－~～〜―至到";
constexpr std::u16string_view kAfterNumber = u".．)）]】、:：=>-–—－/／";
constexpr std::u16string_view kWordsForNumber = u"题題問问번";
constexpr std::u16string_view kBetweenEntries = u",，;；、|/／。·•-–—－";
constexpr std::u16string_view kTokenOpens = u"([（【";
constexpr std::u16string_view kTokenCloses = u")]）】.。．";

bool Among(std::u16string_view units, char16_t unit) {
  return units.find(unit) != units.npos;
}

bool IsAsciiDigit(char16_t unit) {
  return unit >= u'0' && unit <= u'9';
}

Numeral PlainNumeralAt(std::u16string_view text, std::size_t place, std::size_t mostDigits = kUsualDigits) {
  for (const NumeralKind kind : kKeyNumerals) {
    const Numeral numeral = NumeralAt(text, place, kind, mostDigits);
    if (numeral.size > 0) return numeral;
  }
  return {};
}

/// A number of a question; Chinese ones only before a mark, for they are words, too.
Numeral KeyNumeralAt(std::u16string_view text, std::size_t place, std::size_t mostDigits) {
  const Numeral plain = PlainNumeralAt(text, place, mostDigits);
  if (plain.size > 0 || place >= text.size()) return plain;
  const Numeral chinese = NumeralAt(text, place, NumeralKind::Chinese);
  const std::size_t after = place + chinese.size;
  const bool isSetOff = after < text.size() && Among(u"、.．:：)）", text[after]);
  return isSetOff ? chinese : Numeral{};
}

/// The size of a label of several letters, as "ii" or "الف"; 0 if there is none.
std::size_t LetterWordSize(std::u16string_view text) {
  std::size_t longest = 0;
  for (const AlphabetLabel& label : AlphabetLabelsAt(text, 0)) {
    const bool goesOn = text.size() > label.size && AreInOneWord(text[label.size - 1], text[label.size]);
    if (label.size > 1 && !goesOn) longest = std::max(longest, label.size);
  }
  return longest;
}

bool IsDigitLetter(char16_t unit) {
  return IsAsciiDigit(unit) || (unit >= 0xFF10 && unit <= 0xFF19) || (unit >= 0x0660 && unit <= 0x0669) ||
         (unit >= 0x06F0 && unit <= 0x06F9);
}

/// Reads a line of numbers and answers from left to right.
class KeyLine {
 public:
  KeyLine(std::u16string_view text, TextSpan line) : text_(text.substr(0, line.end)), at_(line.begin) {}

  /// Those of a range whose answers make up the line.
  std::vector<KeyEntry> EntriesOf(const KeyRange& range) {
    const bool isWhole =
        TakeBody(at_, range.first, range.count) && SkipBlanks(text_, at_, text_.size()) == text_.size();
    return isWhole ? std::move(entries_) : std::vector<KeyEntry>();
  }

  std::vector<KeyEntry> Entries() {
    for (SkipBetween(); at_ < text_.size(); SkipBetween()) {
      if (!TakeRange() && !TakePair()) return {};
    }
    return std::move(entries_);
  }

 private:
  void SkipBetween() {
    while (at_ < text_.size() && (IsBlank(text_[at_]) || Among(kBetweenEntries, text_[at_]))) ++at_;
  }

  char16_t UnitAt(std::size_t at) const { return at < text_.size() ? text_[at] : u'\0'; }

  /// "1-5 ABCDA"
  bool TakeRange() {
    const auto range = KeyRangeAt(text_, at_, text_.size());
    if (!range) return false;
    std::size_t at = range->end;
    if (at >= text_.size() || (IsLetterOrDigit(text_[at]) && text_[at] != u'题' && !IsRangeBody(at)))
      return false;
    while (at < text_.size() && (IsBlank(text_[at]) || Among(kAfterNumber, text_[at]) || text_[at] == u'题'))
      ++at;
    return TakeBody(at, range->first, range->count);
  }

  bool IsRangeBody(std::size_t at) const {
    return !IsDigitLetter(text_[at]) && !AlphabetLettersOf(text_[at]).empty();
  }

  /// The answers of a range: as many groups as numbers, or as many letters.
  bool TakeBody(std::size_t begin, int first, std::size_t count) {
    std::vector<TextSpan> groups;
    std::size_t at = begin;
    const bool isDigits = IsDigitLetter(UnitAt(begin));
    while (at < text_.size()) {
      if (IsBlank(text_[at]) || Among(kBetweenEntries, text_[at])) {
        ++at;
        continue;
      }
      std::size_t end = at;
      while (end < text_.size() && IsDigitLetter(text_[end]) == isDigits && !IsBlank(text_[end]) &&
             !Among(kBetweenEntries, text_[end]))
        ++end;
      if (end == at || (isDigits && !groups.empty() && groups.size() == count)) break;
      groups.push_back({at, end});
      at = end;
      if (isDigits && UnitCount(groups) == count) break;
    }
    if (!AddGroups(groups, first, count) && (isDigits || !AddMiscounted(groups, first, count))) return false;
    at_ = at;
    return true;
  }

  /// "1-6 ABCA": nobody knows which letter is missing.
  bool AddMiscounted(const std::vector<TextSpan>& groups, int first, std::size_t count) {
    const std::size_t units = UnitCount(groups);
    if (units < 2 || units * 2 < count || units > count * 2) return false;
    const TextSpan body{groups.front().begin, groups.back().end};
    for (const TextSpan& group : groups) {
      for (std::size_t at = group.begin; at < group.end; ++at) {
        if (!ShareAlphabet(text_[at], text_[body.begin])) return false;
      }
    }
    for (std::size_t i = 0; i < count; ++i) entries_.push_back({first++, body, true, at_, count});
    return true;
  }

  static std::size_t UnitCount(const std::vector<TextSpan>& groups) {
    std::size_t units = 0;
    for (const TextSpan& group : groups) units += group.Size();
    return units;
  }

  bool AddGroups(const std::vector<TextSpan>& groups, int first, std::size_t count) {
    std::vector<TextSpan> answers;
    if (groups.size() == count) {
      answers = groups;
    } else if (UnitCount(groups) == count) {
      for (const TextSpan& group : groups) {
        for (std::size_t at = group.begin; at < group.end; ++at) answers.push_back({at, at + 1});
      }
    }
    if (answers.empty()) return false;
    for (const TextSpan& answer : answers) {
      if (KeyTokenSize(text_.substr(0, answer.end), answer.begin, answer.end) != answer.Size()) return false;
    }
    for (const TextSpan& answer : answers) entries_.push_back({first++, answer, true, at_});
    return true;
  }

  /// "1. B"
  bool TakePair() {
    const auto number = KeyNumberAt(text_, at_, text_.size(), kLongNumberDigits);
    if (!number) return false;
    std::size_t at = number->place.end;
    while (Among(kTokenOpens, UnitAt(at)) && at < text_.size()) ++at;
    const std::size_t begin = SkipBlanks(text_, at, text_.size());
    std::size_t end = begin + KeyTokenSize(text_, begin, text_.size());
    if (end == begin || (IsDigitLetter(text_[begin]) && !CanBeDigitKey(*number, end))) return false;
    for (std::size_t next = JoinedEnd(end); next > end; next = JoinedEnd(end)) end = next;
    entries_.push_back({number->value, {begin, end}, true, at_});
    at_ = end;
    while (at_ < text_.size() && (IsBlank(text_[at_]) || Among(kTokenCloses, text_[at_]))) ++at_;
    return true;
  }

  /// A digit is an answer if nothing shows it to be the next number.
  bool CanBeDigitKey(const KeyNumber& number, std::size_t end) const {
    const char16_t next = UnitAt(end);
    return number.isSetOff && (next == 0 || (!Among(u".．)）、:：", next) && !Among(kRangeDashes, next)));
  }

  /// Where the next letters of the same answer end: "B, D", "B and D". Letters only.
  std::size_t JoinedEnd(std::size_t end) const {
    std::size_t at = SkipBlanks(text_, end, text_.size());
    if (at >= text_.size() || IsDigitLetter(text_[end - 1])) return end;
    const bool isMark = Among(u",，、/&+", text_[at]);
    const std::size_t joiner =
        isMark ? 1 : std::max(AndWordSize(text_.substr(at)), OrWordSize(text_.substr(at)));
    if (joiner == 0 || (!isMark && at == end)) return end;
    at = SkipBlanks(text_, at + joiner, text_.size());
    if (at >= text_.size() || IsDigitLetter(text_[at])) return end;
    const std::size_t size = KeyTokenSize(text_, at, text_.size());
    return size == 0 ? end : at + size;
  }

  std::u16string_view text_;
  std::size_t at_;
  std::vector<KeyEntry> entries_;
};

}  // namespace

std::optional<KeyNumber> KeyNumberAt(std::u16string_view text, std::size_t place, std::size_t end,
                                     std::size_t mostDigits) {
  const std::u16string_view part = text.substr(0, end);
  std::size_t at = place;
  while (at < end && Among(kTokenOpens, part[at])) ++at;
  const std::u16string folded = Folded(part.substr(at, 12));
  for (const std::u16string_view prefix : kNumberPrefixes) {
    if (!folded.starts_with(prefix)) continue;
    at = SkipBlanks(part, at + prefix.size(), end);
    break;
  }
  const bool isLettered = at + 1 < end && Among(kPartLetters, part[at]) && IsAsciiDigit(part[at + 1]);
  if (isLettered) ++at;
  const Numeral numeral = KeyNumeralAt(part, at, mostDigits);
  if (numeral.size == 0) return std::nullopt;
  std::size_t after = at + numeral.size;
  const std::size_t bare = after;
  while (after < end &&
         (Among(kAfterNumber, part[after]) || Among(kWordsForNumber, part[after]) || IsBlank(part[after])))
    ++after;
  const bool isSymbol = numeral.kind >= NumeralKind::Circled;
  const bool isSetOff = isSymbol || std::ranges::any_of(part.substr(bare, after - bare),
                                                        [](char16_t unit) { return !IsBlank(unit); });
  // "3.5 metres" and "20th" begin with no number of a question.
  if (after < end && IsAsciiDigit(part[after]) && after == bare + 1 && Among(u".．:-/", part[bare])) {
    const bool isSingle = after + 1 == end || !IsLetterOrDigit(part[after + 1]);
    if (!isSingle) return std::nullopt;
  }
  return KeyNumber{numeral.value, {place, after}, isSetOff, isLettered};
}

std::optional<KeyRange> KeyRangeAt(std::u16string_view text, std::size_t place, std::size_t end) {
  constexpr int kLongestRange = 200;
  const std::u16string_view part = text.substr(0, end);
  std::size_t at = place < end && Among(kTokenOpens, part[place]) ? place + 1 : place;
  const Numeral first = PlainNumeralAt(part, at, kLongNumberDigits);
  if (first.size == 0) return std::nullopt;
  at = SkipBlanks(part, at + first.size, end);
  if (at >= end || !Among(kRangeDashes, part[at])) return std::nullopt;
  while (at < end && Among(kRangeDashes, part[at])) ++at;
  at = SkipBlanks(part, at, end);
  const Numeral last = PlainNumeralAt(part, at, kLongNumberDigits);
  const bool isRange = last.size > 0 && last.value > first.value && last.value - first.value <= kLongestRange;
  if (!isRange) return std::nullopt;
  return KeyRange{first.value, static_cast<std::size_t>(last.value - first.value) + 1, at + last.size};
}

std::vector<KeyEntry> EntriesOfRange(std::u16string_view text, const KeyRange& range, TextSpan letters) {
  return KeyLine(text, letters).EntriesOf(range);
}

std::size_t KeyTokenSize(std::u16string_view text, std::size_t place, std::size_t end) {
  constexpr std::size_t kMostLetters = 6;
  if (place >= end) return 0;
  const std::u16string_view part = text.substr(place, end - place);
  if (const std::size_t word = LetterWordSize(part); word > 0) return word;
  const std::vector<JudgementWord> words = JudgementWordsAt(part);
  if (AlphabetLettersOf(part.front()).empty()) return words.empty() ? 0 : words.front().size;
  const bool isDigit = IsDigitLetter(part.front());
  std::size_t size = 1;
  while (!isDigit && size < part.size() && size < kMostLetters && ShareAlphabet(part.front(), part[size]))
    ++size;
  const bool goesOn = size < part.size() && AreInOneWord(part[size - 1], part[size]) &&
                      (isDigit || !IsAsciiDigit(part[size]));
  if (!goesOn && (size == 1 || words.empty() || words.front().size <= size)) return size;
  return words.empty() ? 0 : words.front().size;
}

bool ShareAlphabet(char16_t one, char16_t other) {
  for (const AlphabetLetter& letter : AlphabetLettersOf(one)) {
    for (const AlphabetLetter& second : AlphabetLettersOf(other)) {
      if (letter.alphabet == second.alphabet) return true;
    }
  }
  return false;
}

std::size_t KeyLetterCount(std::u16string_view letters) {
  return static_cast<std::size_t>(
      std::ranges::count_if(letters, [](char16_t unit) { return !AlphabetLettersOf(unit).empty(); }));
}

std::vector<KeyEntry> EntriesOfLine(std::u16string_view text, TextSpan line) {
  constexpr std::size_t kLongestTitleBefore = 60;
  constexpr int kMostAttempts = 3;
  const TextSpan trimmed = Trimmed(text, line);
  std::size_t from = trimmed.begin;
  for (int attempt = 0; attempt < kMostAttempts; ++attempt) {
    if (std::vector<KeyEntry> entries = KeyLine(text, {from, trimmed.end}).Entries(); !entries.empty())
      return entries;
    // The title before the first number may hold a number itself: "Part 1: 1. B".
    while (from < trimmed.end && PlainNumeralAt(text, from).size > 0) ++from;
    while (from < trimmed.end && PlainNumeralAt(text, from).size == 0) ++from;
    if (from >= trimmed.end || from - trimmed.begin > kLongestTitleBefore) return {};
    const std::u16string_view title = Trimmed(text, {trimmed.begin, from}).Of(text);
    if (title.empty()) return {};
    if (!IsPartTitle(title) && !HasVersionMark(title) && AnswerHeadingOf(title) == AnswerHeading::None &&
        title.back() != u':' && title.back() != u'：')
      return {};
  }
  return {};
}

}  // namespace quorvantis

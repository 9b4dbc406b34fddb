// SPDX-License-Identifier: MIT
#include "import/keys/KeyReader.h"

#include "import/keys/KeyVersions.h"
#include "import/labels/LineText.h"
#include "import/labels/OptionAlphabets.h"
#include "import/lines/AnswerHeadings.h"
#include "import/lines/AnswerWords.h"
#include "import/lines/FoldedText.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// The cells of a row: by tabs if it has any, else by blanks and bars.
std::vector<TextSpan> CellsOf(std::u16string_view text, TextSpan line, bool hasTabs) {
  const std::u16string_view separators = hasTabs ? u"\t" : u" \u00A0\u3000|";
  std::vector<TextSpan> cells;
  std::size_t begin = line.begin;
  for (std::size_t at = line.begin; at <= line.end; ++at) {
    if (at < line.end && separators.find(text[at]) == separators.npos) continue;
    const TextSpan cell = Trimmed(text, {begin, at});
    if (hasTabs || !cell.IsEmpty()) cells.push_back(cell);
    begin = at + 1;
  }
  return cells;
}

/// The number that a cell consists of, "3" or "3."; its value is 0 if it is anything else.
KeyNumber NumberInCell(std::u16string_view text, TextSpan cell) {
  const auto number = KeyNumberAt(text, cell.begin, cell.end);
  return number && number->place.end == cell.end ? *number : KeyNumber{};
}

/// The answer within a span, without the comma before the next one.
KeyEntry TextEntry(std::u16string_view text, const KeyNumber& number, TextSpan span) {
  TextSpan answer = Trimmed(text, span);
  while (!answer.IsEmpty() && std::u16string_view(u",;，；、").find(text[answer.end - 1]) != text.npos)
    --answer.end;
  const bool isLetters = !answer.IsEmpty() && KeyTokenSize(text, answer.begin, answer.end) == answer.Size();
  return {number.value, answer, isLetters, number.place.begin};
}

/// What stands before a number within a line.
struct BeforeNumber {
  bool isComma = false;
  bool isFar = false;  ///< several blanks, as between columns
  bool isBeforeLetters = false;
};

/// Whether a word consists of letters of options.
bool IsOfLetters(std::u16string_view text, std::size_t at, std::size_t end) {
  const std::size_t after = at + KeyTokenSize(text, at, end);
  return after > at && (after == end || !AreInOneWord(text[after - 1], text[after]));
}

/// Whether a number goes on with a list: it is the next one, or in another column, and set off as the list
/// does.
bool GoesOn(const KeyNumber& last, const KeyNumber& number, const BeforeNumber& before) {
  if (before.isFar && last.isSetOff && number.isSetOff && number.value > last.value) return true;
  const bool isAnew = number.value == 1 && last.isSetOff && number.isSetOff;
  if (isAnew && (before.isFar || before.isBeforeLetters)) return true;
  const bool isNext = number.value == last.value + 1 || (number.isLettered && number.value == 1);
  return isNext && (number.isSetOff || (!last.isSetOff && before.isComma));
}

/// Where the answers of a line begin that the title of their part precedes: "Part C: 6 brought",
/// "三、1．细胞".
std::vector<std::size_t> BehindTitle(std::u16string_view text, TextSpan line) {
  constexpr std::size_t kLongestTitle = 40;
  std::vector<std::size_t> places;
  const TextSpan title{line.begin, std::min(line.end, line.begin + kLongestTitle)};
  for (std::size_t at = title.begin; at < title.end; ++at) {
    if (std::u16string_view(u":：、.．)）").find(text[at]) != std::u16string_view::npos)
      places.push_back(SkipBlanks(text, at + 1, line.end));
  }
  return places;
}

std::vector<KeyEntry> TitledEntriesOfLine(std::u16string_view text, TextSpan line) {
  constexpr std::size_t kMostPlaces = 4;
  const std::vector<std::size_t> places = BehindTitle(text, line);
  for (std::size_t i = 0; i < std::min(places.size(), kMostPlaces); ++i) {
    std::vector<KeyEntry> entries = TextEntriesOfLine(text, {places[i], line.end}, true);
    if (!entries.empty()) return entries;
  }
  return {};
}

/// A line behind the title of a part: "Part 1: 1 2 3".
TextSpan WithoutTitle(std::u16string_view text, TextSpan line) {
  constexpr std::size_t kLongestTitle = 40;
  const std::u16string_view written = line.Of(text);
  const std::size_t colon = written.substr(0, kLongestTitle).find_first_of(u":：");
  if (colon == written.npos || !IsPartTitle(written.substr(0, colon))) return line;
  return {line.begin + colon + 1, line.end};
}

/// Puts the entries of lines together.
class KeyListReading {
 public:
  KeyListReading(std::u16string_view text, TextSpan within) : text_(text), within_(within), lines_(text) {}

  KeyList List() {
    for (const TextSpan& line : LinesOf(text_, within_)) {
      Add(line);
      if (list_.unread.size() > kMostUnread + list_.entries.size()) break;
    }
    return std::move(list_);
  }

 private:
  static constexpr std::size_t kMostUnread = 8;

  void Add(TextSpan line) {
    const KeyLineReading reading = lines_.Read(line);
    std::vector<KeyEntry> entries = reading.entries;
    if (reading.kind == KeyLineKind::Text) entries = TextEntriesOfLine(text_, line);
    if (reading.kind == KeyLineKind::Title)
      entries = IsNextInChinese(line) ? TextEntriesOfLine(text_, line)
                                      : TitledEntriesOfLine(text_, Trimmed(text_, line));
    if (!entries.empty()) {
      NoteTitle({line.begin, std::max(line.begin, entries.front().begin)});
      list_.entries.insert(list_.entries.end(), entries.begin(), entries.end());
      isOpen_ = true;
    } else if (reading.kind == KeyLineKind::Title) {
      isOpen_ = false;
      NoteTitle(line);
    } else if (reading.kind == KeyLineKind::NumberRow) {
      if (IsPartTitle(Trimmed(text_, line).Of(text_))) NoteTitle(line);
    } else if (reading.kind == KeyLineKind::Text) {
      // Behind letters, lines explain; behind a text, they go on with it.
      if (!isOpen_) {
        list_.unread.push_back(Trimmed(text_, line));
      } else if (list_.entries.back().isLetters) {
        list_.explanations.push_back(Trimmed(text_, line));
      } else {
        list_.entries.back().answer.end = Trimmed(text_, line).end;
      }
    }
  }

  /// "五、cells" behind "四、B" is the next answer, not the title of a part.
  bool IsNextInChinese(TextSpan line) const {
    if (list_.entries.empty()) return false;
    const KeyEntry& last = list_.entries.back();
    const TextSpan trimmed = Trimmed(text_, line);
    const auto isChinese = [this](std::size_t at) {
      return NumeralAt(text_, at, NumeralKind::Chinese).size > 0;
    };
    const auto number = KeyNumberAt(text_, trimmed.begin, trimmed.end);
    return number && number->isSetOff && number->value == last.number + 1 && isChinese(last.begin) &&
           isChinese(trimmed.begin) && number->place.end < trimmed.end;
  }

  /// Of several titles in front of the same answers the last one that names a part counts.
  void NoteTitle(TextSpan title) {
    const TextSpan trimmed = Trimmed(text_, title);
    if (trimmed.IsEmpty()) return;
    const bool isFurther = !list_.titles.empty() && list_.titles.back().first == list_.entries.size();
    if (!isFurther) {
      list_.titles.push_back({trimmed, list_.entries.size()});
    } else if (IsPartTitle(trimmed.Of(text_))) {
      list_.titles.back().title = trimmed;
    }
  }

  std::u16string_view text_;
  TextSpan within_;
  KeyLineReader lines_;
  KeyList list_;
  bool isOpen_ = false;  ///< the last entry may go on
};

}  // namespace

KeyLineReading KeyLineReader::Read(TextSpan line) {
  const TextSpan trimmed = Trimmed(text_, line);
  if (trimmed.IsEmpty()) return {KeyLineKind::Blank};
  if (!numbers_.empty()) {
    std::vector<KeyEntry> entries = AnswerRow(line);
    numbers_.clear();
    if (!entries.empty()) return {KeyLineKind::AnswerRow, std::move(entries)};
  }
  if (!ranges_.empty()) {
    std::vector<KeyEntry> entries = RangeAnswers(line);
    ranges_.clear();
    if (!entries.empty()) return {KeyLineKind::AnswerRow, std::move(entries)};
  }
  if (std::vector<KeyEntry> entries = EntriesOfLine(text_, line); !entries.empty())
    return {KeyLineKind::Entries, std::move(entries)};
  if (ReadNumberRow(line) || ReadRangeRow(line)) return {KeyLineKind::NumberRow};
  const std::u16string_view title = trimmed.Of(text_);
  const bool isTitle =
      IsPartTitle(title) || HasVersionMark(title) || AnswerHeadingOf(title) == AnswerHeading::Clear;
  return {isTitle ? KeyLineKind::Title : KeyLineKind::Text};
}

bool KeyLineReader::ReadNumberRow(TextSpan line) {
  hasTabs_ = line.Of(text_).find(u'\t') != std::u16string_view::npos;
  const std::vector<TextSpan> cells = CellsOf(text_, WithoutTitle(text_, line), hasTabs_);
  std::vector<int> numbers;
  int last = 0;
  int withDots = 0;
  int bare = 0;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const KeyNumber number = NumberInCell(text_, cells[i]);
    const bool isLabel = i == 0 && number.value == 0;
    if (!isLabel && !cells[i].IsEmpty() && number.value <= last) return false;
    if (number.value > 0) ++(number.isSetOff ? withDots : bare);
    last = std::max(last, number.value);
    numbers.push_back(number.value);
  }
  // "7. 42" is a number and an answer.
  if (withDots > 0 && bare > 0) return false;
  if (std::ranges::count_if(numbers, [](int number) { return number > 0; }) < 2) return false;
  numbers_ = std::move(numbers);
  return true;
}

bool KeyLineReader::ReadRangeRow(TextSpan line) {
  constexpr std::u16string_view kBehindRange = u":：.．)）]】,，;；|题題";
  const TextSpan within = Trimmed(text_, WithoutTitle(text_, line));
  hasTabs_ = within.Of(text_).find(u'\t') != std::u16string_view::npos;
  std::size_t at = within.begin;
  // "No.", the label of the row.
  if (hasTabs_ && !KeyRangeAt(text_, at, within.end)) at = within.begin + within.Of(text_).find(u'\t') + 1;
  std::vector<KeyRange> ranges;
  while (at < within.end) {
    const auto range = KeyRangeAt(text_, at, within.end);
    if (!range) return false;
    ranges.push_back(*range);
    at = range->end;
    while (at < within.end && (IsBlank(text_[at]) || kBehindRange.find(text_[at]) != kBehindRange.npos)) ++at;
  }
  ranges_ = std::move(ranges);
  return !ranges_.empty();
}

std::vector<KeyEntry> KeyLineReader::RangeAnswers(TextSpan line) const {
  std::vector<TextSpan> cells = CellsOf(text_, line, hasTabs_);
  if (cells.size() == ranges_.size() + 1 && hasTabs_) cells.erase(cells.begin());
  if (ranges_.size() == 1 && !hasTabs_) cells = {Trimmed(text_, line)};
  if (cells.size() != ranges_.size()) return {};
  std::vector<KeyEntry> entries;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const std::vector<KeyEntry> answers = EntriesOfRange(text_, ranges_[i], cells[i]);
    if (answers.empty()) return {};
    entries.insert(entries.end(), answers.begin(), answers.end());
  }
  return entries;
}

std::vector<KeyEntry> KeyLineReader::AnswerRow(TextSpan line) const {
  std::vector<TextSpan> cells = CellsOf(text_, line, hasTabs_);
  const bool hasLabel = numbers_.front() == 0;
  if (cells.size() != numbers_.size()) return MiscountedRow(cells, line);
  std::vector<KeyEntry> entries;
  for (std::size_t i = hasLabel ? 1 : 0; i < cells.size(); ++i) {
    if (cells[i].IsEmpty()) continue;
    const bool isLetters = KeyTokenSize(text_, cells[i].begin, cells[i].end) == cells[i].Size();
    if (numbers_[i] == 0 || (!isLetters && !hasTabs_)) return {};
    entries.push_back({numbers_[i], cells[i], isLetters, line.begin});
  }
  return entries;
}

std::vector<KeyEntry> KeyLineReader::MiscountedRow(const std::vector<TextSpan>& cells, TextSpan line) const {
  const bool hasLabel = numbers_.front() == 0;
  std::vector<KeyEntry> entries;
  for (std::size_t i = hasLabel ? 1 : 0; i < cells.size(); ++i) {
    if (KeyTokenSize(text_, cells[i].begin, cells[i].end) != cells[i].Size()) return {};
  }
  const std::size_t asked = numbers_.size() - (hasLabel ? 1 : 0);
  if (cells.size() * 2 < asked) return {};
  for (const int number : numbers_) {
    if (number > 0) entries.push_back({number, Trimmed(text_, line), true, line.begin, asked});
  }
  return entries;
}

std::vector<KeyEntry> TextEntriesOfLine(std::u16string_view text, TextSpan line, bool isBehindTitle) {
  std::vector<KeyEntry> entries;
  const TextSpan trimmed = Trimmed(text, line);
  auto number = KeyNumberAt(text, trimmed.begin, trimmed.end);
  if (!number || (!number->isSetOff && !isBehindTitle)) return {};
  const bool isSetOff = number->isSetOff;
  std::size_t begin = number->place.end;
  for (std::size_t at = begin; at < trimmed.end; ++at) {
    if (!IsBlank(text[at])) continue;
    const std::size_t next = SkipBlanks(text, at, trimmed.end);
    const auto following = KeyNumberAt(text, next, trimmed.end);
    const BeforeNumber before{std::u16string_view(u",;，；").find(text[at - 1]) != std::u16string_view::npos,
                              next > at + 1 || text[at] == u'\t',
                              following && IsOfLetters(text, following->place.end, trimmed.end)};
    if (following && GoesOn(*number, *following, before)) {
      entries.push_back(TextEntry(text, *number, {begin, at}));
      number = following;
      begin = following->place.end;
      at = begin;
    }
    at = std::max(at, next) - 1;
  }
  entries.push_back(TextEntry(text, *number, {begin, trimmed.end}));
  // "Part 2: 10 points" is no key.
  if (!isSetOff && entries.size() < 2) return {};
  return entries;
}

bool HoldsAnswers(std::u16string_view text, TextSpan line) {
  if (!EntriesOfLine(text, line).empty()) return true;
  return !TitledEntriesOfLine(text, Trimmed(text, line)).empty();
}

KeyList ReadKeyList(std::u16string_view text, TextSpan within) {
  return KeyListReading(text, within).List();
}

std::vector<KeyEntry> ReadBareKey(std::u16string_view text, TextSpan within) {
  std::vector<KeyEntry> entries;
  for (std::size_t at = within.begin; at < within.end; ++at) {
    const char16_t unit = text[at];
    if (IsBlank(unit) || IsLineEnd(unit) ||
        std::u16string_view(u",，;；、|/.。").find(unit) != std::u16string_view::npos)
      continue;
    const bool isDigit = unit < 0x80 && (unit < u'A' || unit > u'z');
    if (AlphabetLettersOf(unit).empty() || isDigit) return {};
    // "①B ②C" has numbers.
    if (!entries.empty() && !ShareAlphabet(text[entries.front().begin], unit)) return {};
    entries.push_back({0, {at, at + 1}, true, at});
  }
  return entries;
}

}  // namespace quorvantis

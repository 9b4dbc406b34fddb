// SPDX-License-Identifier: MIT
#include "learn/warnings/VisibleKey.h"

#include "import/keys/KeyReader.h"
#include "import/keys/QuestionKey.h"
#include "import/labels/LineText.h"
#include "import/labels/OptionSigns.h"
#include "import/lines/AnswerHeadings.h"
#include "import/lines/AnswerWords.h"
#include "import/marking/ImportMarkers.h"
#include "import/paper/PreparedLabels.h"
#include "learn/warnings/KeyTraces.h"
#include "model/AnswerLetters.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::u16string_view kOpens = u"(\uFF08[\u3010";
constexpr std::u16string_view kCloses = u")\uFF09]\u3011";

/// From a place on, as much as a line of a warning shows.
std::u16string ExcerptAt(std::u16string_view text, std::size_t place) {
  constexpr std::size_t kEnough = 40;
  const std::size_t end = std::min(LineEndAfter(text, place), place + kEnough);
  return std::u16string(text.substr(place, end - place));
}

/// "B" and "B/D".
bool IsLetterOrBetween(char16_t unit) {
  return (unit >= u'A' && unit <= u'E') || unit == u'/' || unit == u',';
}

/// Letters in brackets that can be the key: of options that there are, and in the key if there is one.
std::u16string KeyInBrackets(const ReadQuestion& question) {
  const std::u16string_view text = question.text;
  for (std::size_t open = text.find_first_of(kOpens); open != text.npos;
       open = text.find_first_of(kOpens, open + 1)) {
    const std::size_t begin = SkipBlanks(text, open + 1, text.size());
    std::size_t end = begin;
    while (end < text.size() && IsLetterOrBetween(text[end])) ++end;
    const std::size_t close = SkipBlanks(text, end, text.size());
    if (end == begin || close >= text.size() || kCloses.find(text[close]) == kCloses.npos) continue;
    const bool canBeKey =
        std::all_of(text.begin() + static_cast<std::ptrdiff_t>(begin),
                    text.begin() + static_cast<std::ptrdiff_t>(end), [&question](char16_t letter) {
                      if (letter < u'A') return true;
                      const auto option = OptionIndex(letter);
                      const bool isKey =
                          question.letters.empty() || question.letters.find(letter) != std::u16string::npos;
                      return option && !question.options[*option].empty() && isKey;
                    });
    if (canBeKey) return std::u16string(text.substr(open, close + 1 - open));
  }
  return {};
}

/// A line that begins with the label of an answer.
std::u16string LabelledAnswer(std::u16string_view text) {
  constexpr std::u16string_view kLabelEnds = u":\uFF1A\u3011]";
  for (const TextSpan& line : LinesOf(text, {0, text.size()})) {
    const std::size_t begin = SkipBlanks(text, line.begin, line.end);
    const std::u16string_view rest = TextSpan{begin, line.end}.Of(text);
    const std::u16string_view lead = rest.substr(0, AnswerLeadSize(rest));
    if (lead.find_first_of(kLabelEnds) != lead.npos && lead.size() < rest.size())
      return ExcerptAt(text, begin);
  }
  return {};
}

/// Whether a text is the answer of a key's line, whose number was taken for that of a question: "B", or
/// "B  2. C  3. A".
bool IsAnswerOfKey(std::u16string_view text) {
  const TextSpan whole = Trimmed(text, {0, text.size()});
  const std::size_t size = KeyTokenSize(text, whole.begin, whole.end);
  if (size == 0) return false;
  const TextSpan rest = Trimmed(text, {whole.begin + size, whole.end});
  return rest.IsEmpty() || !EntriesOfLine(text, {rest.begin, LineEndAfter(text, rest.begin)}).empty();
}

/// "1) B) Rome"
bool IsNumberedOption(std::u16string_view text, TextSpan line) {
  const auto number = KeyNumberAt(text, line.begin, line.end);
  if (!number || !number->isSetOff) return false;
  const std::size_t letter = number->place.end;
  constexpr std::u16string_view kBehindLetter = u").\uFF0E\uFF09";
  return KeyTokenSize(text, letter, line.end) == 1 && letter + 1 < line.end &&
         kBehindLetter.find(text[letter + 1]) != kBehindLetter.npos;
}

/// A line of a key behind the first line of a text: with several answers, one of several lines with one each,
/// or a heading with anything behind it.
std::u16string KeyLineBehind(std::u16string_view text) {
  constexpr std::size_t kFewest = 2;
  const std::vector<TextSpan> lines = LinesOf(text, {0, text.size()});
  std::size_t inARow = 0;
  KeyLineReader reader(text);
  for (std::size_t i = 1; i < lines.size(); ++i) {
    const TextSpan line = Trimmed(text, lines[i]);
    if (line.IsEmpty()) continue;
    const KeyLineReading reading = reader.Read(lines[i]);
    const std::size_t entries = reading.entries.size();
    const bool isOption = IsNumberedOption(text, line);
    const bool goesOn = isOption || entries > 0 || reading.kind == KeyLineKind::NumberRow;
    inARow = goesOn ? inARow + std::max<std::size_t>(entries, isOption ? 1 : 0) : 0;
    const bool isHeading =
        IsBareAnswerHeading(line.Of(text)) && !IsBlankToFill(text, {line.end, text.size()});
    if (inARow >= kFewest || isHeading) return ExcerptAt(text, line.begin);
  }
  return {};
}

bool HasSign(std::u16string_view option) {
  const TextSpan span = Trimmed(option, {0, option.size()});
  if (span.IsEmpty()) return false;
  const auto isSign = [](char16_t unit) { return kRightSigns.find(unit) != kRightSigns.npos; };
  return span.Size() > 1 && (isSign(option[span.begin]) || isSign(option[span.end - 1]));
}

/// A sign that some options have and others lack.
std::u16string SignedOption(const ReadQuestion& question) {
  const std::u16string* signedOne = nullptr;
  bool isAtAll = true;
  for (const std::u16string& option : question.options) {
    if (option.empty()) continue;
    if (!HasSign(option))
      isAtAll = false;
    else if (signedOne == nullptr)
      signedOne = &option;
  }
  return signedOne == nullptr || isAtAll ? std::u16string() : ExcerptAt(*signedOne, 0);
}

std::u16string ShownKeyLine(const ReadQuestion& question) {
  std::u16string found = KeyLineBehind(question.text);
  for (const std::u16string& option : question.options) {
    if (found.empty()) found = KeyLineBehind(option);
  }
  const bool isAnswer = question.kind != ReadKind::Choice && IsAnswerOfKey(question.text);
  return found.empty() && isAnswer ? ExcerptAt(question.text, 0) : found;
}

std::u16string LeftOver(std::u16string_view text) {
  const std::size_t place = std::min(text.find(kPreparedOpen), text.find(kAnswerMarker));
  return place == text.npos ? LabelledAnswer(text) : ExcerptAt(text, place);
}

/// A trace in the text or in an option. Options that match numbers with letters all have some: "1-b, 2-a,
/// 3-c".
std::u16string TraceOfKey(const ReadQuestion& question) {
  std::u16string trace = KeyTrace(question.text);
  std::u16string row = NumberedLetters(question.text);
  std::size_t rows = row.empty() ? 0 : 1;
  for (const std::u16string& option : question.options) {
    if (trace.empty()) trace = KeyTrace(option);
    const std::u16string found = NumberedLetters(option);
    rows += found.empty() ? 0 : 1;
    if (row.empty()) row = found;
  }
  return trace.empty() && rows == 1 ? row : trace;
}

}  // namespace

std::u16string VisibleKey(const ReadQuestion& question) {
  std::u16string found = LeftOver(question.text);
  for (const std::u16string& option : question.options) {
    if (found.empty()) found = LeftOver(option);
  }
  if (found.empty()) found = ShownKeyLine(question);
  if (found.empty()) found = TraceOfKey(question);
  if (question.kind != ReadKind::Choice) return found;
  if (found.empty()) found = KeyInBrackets(question);
  return found.empty() ? SignedOption(question) : found;
}

bool ShowsKeyLine(const ReadQuestion& question) {
  return !ShownKeyLine(question).empty();
}

}  // namespace quorvantis

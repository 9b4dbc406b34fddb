// SPDX-License-Identifier: MIT
#include "import/prepare/KeySection.h"

#include "import/labels/LineText.h"
#include "import/prepare/AnswerWords.h"
#include "import/prepare/KeyMatching.h"
#include "import/prepare/KeyReader.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// A heading that answers may follow.
struct HeadingPlace {
  std::size_t begin = 0;  ///< of its line
  std::size_t end = 0;    ///< where the answers may begin
  AnswerHeading heading = AnswerHeading::None;
};

/// The questions that begin before a place, as if the text ended there.
std::vector<OutlinedQuestion> QuestionsBefore(std::u16string_view text, const PaperOutline& outline,
                                              std::size_t end) {
  std::vector<OutlinedQuestion> questions;
  for (const OutlinedQuestion& outlined : outline.questions) {
    if (outlined.label.begin >= end) break;
    OutlinedQuestion& question = questions.emplace_back(outlined);
    question.whole.end = std::min(question.whole.end, end);
    if (question.answerLabel.end > end) question.answerLabel = {end, end};
    if (question.answer.end > end)
      question.answer = Trimmed(text, {std::min(question.answer.begin, end), end});
    if (outlined.whole.end > end && outlined.HasOptions())
      question.options = FindOptions(text, {question.label.end, std::min(end, question.answerLabel.begin)});
  }
  return questions;
}

/// Searches the headings from the top of a paper, then its tail.
class KeySectionSearch {
 public:
  KeySectionSearch(std::u16string_view text, const PaperOutline& outline)
      : text_(text), outline_(outline), lines_(LinesOf(text, {0, text.size()})) {}

  KeySearchResult Search() {
    KeySearchResult result;
    for (const HeadingPlace& heading : Headings()) {
      if ((result.section = SectionAt(heading))) return result;
    }
    result.section = Tail();
    result.isUnmatched = !result.section && hasSeenKey_;
    return result;
  }

 private:
  std::vector<HeadingPlace> Headings() const {
    constexpr std::size_t kMostHeadings = 12;
    // Places to write answers on may look like headings: the last ones count as much as the first.
    constexpr std::size_t kMostFirst = kMostHeadings / 2;
    std::vector<HeadingPlace> headings;
    if (!outline_.answerSection.IsEmpty()) {
      const std::size_t begin = Trimmed(text_, outline_.answerSection).begin;
      headings.push_back({begin, LineEndAfter(text_, begin), AnswerHeading::Clear});
      headings.push_back({begin, begin, AnswerHeading::Clear});
    }
    if (outline_.questions.empty()) return headings;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      if (lines_[i].end <= outline_.questions.front().label.end) continue;
      const HeadingPlace heading = HeadingOf(lines_[i]);
      if (heading.heading == AnswerHeading::None || !IsKeyBehind(i, heading)) continue;
      if (headings.size() == kMostHeadings) headings.erase(headings.begin() + kMostFirst);
      headings.push_back(heading);
    }
    return headings;
  }

  /// A line that is a heading, or begins with one: "Answers: 1-5 ABCDA".
  HeadingPlace HeadingOf(TextSpan line) const {
    constexpr std::size_t kLongest = 80;
    const TextSpan trimmed = Trimmed(text_, line);
    const std::u16string_view whole = trimmed.Of(text_);
    if (whole.size() <= kLongest) {
      const AnswerHeading heading = AnswerHeadingOf(whole);
      if (heading == AnswerHeading::Clear) return {trimmed.begin, trimmed.end, heading};
      const bool isOwnAnswer = whole.find_first_of(u":：=") != whole.npos || HasOwnAnswer(trimmed);
      if (heading == AnswerHeading::Possible && !isOwnAnswer && EntriesOfLine(text_, line).empty())
        return {trimmed.begin, trimmed.end, heading};
    }
    const std::size_t colon = whole.substr(0, kLongest).find_first_of(u":： \u00A0\u3000\t1１");
    if (colon == whole.npos) return {};
    // The heading itself may have several words: "Answer key: 1. B".
    const std::size_t words = std::max(colon, whole.substr(0, kLongest).find_first_of(u":："));
    for (const std::size_t place : {colon, words == whole.npos ? colon : words}) {
      if (AnswerHeadingOf(whole.substr(0, place)) != AnswerHeading::Clear) continue;
      const std::size_t begin =
          trimmed.begin + place + (whole[place] == u'1' || whole[place] == u'１' ? 0 : 1);
      if (AreAnswers({begin, trimmed.end}) || IsOnlyBareKey(whole.substr(0, place), {begin, trimmed.end}))
        return {trimmed.begin, begin, AnswerHeading::Clear};
    }
    return {};
  }

  bool AreAnswers(TextSpan line) const {
    if (!EntriesOfLine(text_, line).empty()) return true;
    return TextEntriesOfLine(text_, line, true).size() > 1;
  }

  /// Whether letters without numbers follow a label that no other line begins with: "Key: BACD". The other
  /// lines would be answers of single questions.
  bool IsOnlyBareKey(std::u16string_view label, TextSpan letters) const {
    constexpr std::size_t kFewest = 3;
    if (ReadBareKey(text_, letters).size() < kFewest || HasOwnAnswer(letters)) return false;
    const auto hasLabel = [this, label](const TextSpan& line) {
      return Trimmed(text_, line).Of(text_).starts_with(label);
    };
    const auto first = std::ranges::find_if(lines_, hasLabel);
    return first != lines_.end() && std::find_if(first + 1, lines_.end(), hasLabel) == lines_.end();
  }

  /// Whether a rule has found a question's own answer in the line.
  bool HasOwnAnswer(TextSpan line) const {
    const auto after =
        std::ranges::upper_bound(outline_.questions, line.begin, {},
                                 [](const OutlinedQuestion& question) { return question.label.begin; });
    return after != outline_.questions.begin() && std::prev(after)->answer.Overlaps(line);
  }

  /// Whether the first lines behind a heading look like a key; saves reading to the end each time.
  bool IsKeyBehind(std::size_t line, const HeadingPlace& heading) const {
    constexpr std::size_t kMostLines = 8;
    if (heading.end < lines_[line].end && !Trimmed(text_, {heading.end, lines_[line].end}).IsEmpty())
      return true;
    constexpr std::size_t kLongestCaption = 30;
    KeyLineReader reader(text_);
    int captions = 2;  // of the columns of a table: "Question", "Answer"
    for (std::size_t i = line + 1; i < std::min(lines_.size(), line + 1 + kMostLines); ++i) {
      const KeyLineReading reading = reader.Read(lines_[i]);
      if (!reading.entries.empty()) return true;
      if (reading.kind != KeyLineKind::Text) continue;
      const TextSpan trimmed = Trimmed(text_, lines_[i]);
      const auto number = KeyNumberAt(text_, trimmed.begin, trimmed.end);
      if ((number && number->isSetOff) || !ReadBareKey(text_, trimmed).empty()) return true;
      if (captions-- == 0 || trimmed.Size() > kLongestCaption) return false;
    }
    return false;
  }

  /// A line that says that the paper ends, "--- END ---", belongs to what follows.
  std::size_t BeginWithEndLine(std::size_t begin) const {
    const TextSpan before = Trimmed(text_, {0, begin});
    const TextSpan line = Trimmed(text_, {LineBeginBefore(text_, before.end), before.end});
    constexpr std::size_t kLongest = 60;
    if (line.Size() < 3 || line.Size() > kLongest) return begin;
    const std::u16string_view written = line.Of(text_);
    const char16_t rule = written.front();
    const bool isRuled = std::u16string_view(u"-–—*=~").find(rule) != std::u16string_view::npos;
    return isRuled && written[1] == rule && written.back() == rule ? line.begin : begin;
  }

  std::optional<KeySection> SectionAt(const HeadingPlace& heading) {
    const TextSpan rest{heading.end, text_.size()};
    const std::size_t begin = BeginWithEndLine(heading.begin);
    KeySection section{begin, QuestionsBefore(text_, outline_, begin), {}};
    std::vector<KeyEntry> entries = ReadBareKey(text_, rest);
    if (entries.empty()) {
      KeyList list = ReadKeyList(text_, rest);
      if (list.unread > 3 + list.entries.size() / 2) return std::nullopt;
      entries = std::move(list.entries);
    }
    if (entries.empty() || AreQuestions(entries)) return std::nullopt;
    auto matched = MatchEntries(text_, entries, section.questions);
    if (!matched || !IsCredible(*matched, heading.heading)) {
      hasSeenKey_ = hasSeenKey_ || std::ranges::all_of(entries, &KeyEntry::isLetters);
      return std::nullopt;
    }
    section.entries = std::move(*matched);
    return section;
  }

  /// Behind "Answers to these questions" questions may follow.
  bool AreQuestions(const std::vector<KeyEntry>& entries) const {
    const auto isQuestion = [this](const KeyEntry& entry) {
      const std::u16string_view answer = entry.answer.Of(text_);
      return !entry.isLetters && !answer.empty() &&
             std::u16string_view(u"?？؟_:：…").find(answer.back()) != std::u16string_view::npos;
    };
    return std::ranges::count_if(entries, isQuestion) * 3 > std::ssize(entries);
  }

  /// Answers in words need a clear heading, for they may be questions of another part.
  static bool IsCredible(const std::vector<MatchedEntry>& entries, AnswerHeading heading) {
    if (heading == AnswerHeading::Clear) return !entries.empty();
    const auto isLetters = [](const MatchedEntry& entry) { return entry.entry.isLetters; };
    return entries.size() > 1 && std::ranges::count_if(entries, isLetters) * 2 > std::ssize(entries);
  }

  /// Without a heading: the last lines, as far as they are nothing but a key.
  std::optional<KeySection> Tail() {
    std::vector<KeyLineReading> readings;
    KeyLineReader reader(text_);
    for (const TextSpan& line : lines_) readings.push_back(reader.Read(line));
    const std::size_t first = FirstOfTail(readings);
    KeySection section;
    std::vector<KeyEntry> entries;
    for (std::size_t i = first; i < readings.size(); ++i) {
      if (!readings[i].entries.empty() && entries.empty())
        section.begin = lines_[BeginOfTail(readings, first, i)].begin;
      entries.insert(entries.end(), readings[i].entries.begin(), readings[i].entries.end());
    }
    if (entries.size() < 2) return std::nullopt;
    section.questions = QuestionsBefore(text_, outline_, section.begin);
    auto matched = MatchEntries(text_, entries, section.questions);
    if (!matched || !IsCompleteKey(*matched, entries.size(), section.questions)) return std::nullopt;
    section.entries = std::move(*matched);
    return section;
  }

  static std::size_t FirstOfTail(const std::vector<KeyLineReading>& readings) {
    std::size_t first = readings.size();
    while (first > 0) {
      const KeyLineReading& reading = readings[first - 1];
      const bool isEmptyRow = reading.kind == KeyLineKind::NumberRow &&
                              (first == readings.size() || readings[first].kind != KeyLineKind::AnswerRow);
      if (reading.kind == KeyLineKind::Text || isEmptyRow) break;
      --first;
    }
    return first;
  }

  /// A row of numbers and the title of a part belong to the answers behind them.
  static std::size_t BeginOfTail(const std::vector<KeyLineReading>& readings, std::size_t first,
                                 std::size_t line) {
    while (line > first && (readings[line - 1].kind == KeyLineKind::NumberRow ||
                            readings[line - 1].kind == KeyLineKind::Title ||
                            (line - 1 > first && readings[line - 1].kind == KeyLineKind::Blank &&
                             readings[line - 2].kind == KeyLineKind::Title)))
      --line;
    return line;
  }

  /// Without a heading all answers must fit, and most choice questions have one.
  bool IsCompleteKey(const std::vector<MatchedEntry>& matched, std::size_t entries,
                     const std::vector<OutlinedQuestion>& questions) const {
    const auto choices = std::ranges::count_if(questions, &OutlinedQuestion::HasOptions);
    std::ptrdiff_t answered = 0;
    for (const MatchedEntry& entry : matched) {
      const OutlinedQuestion& question = questions[entry.question];
      if (!FitsQuestion(text_, entry.entry, question)) return false;
      if (question.HasOptions()) ++answered;
    }
    return matched.size() == entries && choices > 0 && answered * 5 >= choices * 3;
  }

  std::u16string_view text_;
  const PaperOutline& outline_;
  std::vector<TextSpan> lines_;
  bool hasSeenKey_ = false;
};

}  // namespace

KeySearchResult FindKeySection(std::u16string_view text, const PaperOutline& outline) {
  return KeySectionSearch(text, outline).Search();
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "import/keys/KeySection.h"

#include "import/keys/KeyHeadings.h"
#include "import/keys/KeyLeftovers.h"
#include "import/keys/KeyMatching.h"
#include "import/keys/KeyReader.h"
#include "import/keys/KeyTail.h"
#include "import/keys/KeyVersions.h"
#include "import/keys/OptionKey.h"
#include "import/keys/QuestionKey.h"
#include "import/keys/RepeatedKey.h"
#include "import/labels/LineText.h"
#include "import/lines/AnswerHeadings.h"

#include <algorithm>

namespace quorvantis {
namespace {

using Leftover = KeyLeftover::Kind;

/// Searches the headings from the top of a paper, then its tail.
class KeySectionSearch {
 public:
  KeySectionSearch(std::u16string_view text, const PaperOutline& outline) : text_(text), outline_(outline) {}

  KeySearchResult Search() {
    KeySearchResult result;
    for (const HeadingPlace& heading : FindKeyHeadings(text_, outline_)) {
      if ((result.section = SectionAt(heading))) return result;
      NoteUnread(heading);
      if (isSurelyUnclear_) break;
    }
    if (!isSurelyUnclear_) result.section = Tail(KeyTailLines::KeysAndAnswers);
    if (!isSurelyUnclear_ && !result.section) result.section = Tail(KeyTailLines::Keys);
    if (!isSurelyUnclear_ && !result.section) result.section = FindRepeatedKey(text_, outline_);
    result.isUnmatched = !result.section && hasSeenKey_;
    return result;
  }

 private:
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
    KeySection section = SectionFrom(BeginWithEndLine(heading.begin));
    const VersionChoice version = VersionOf(section, {heading.begin, text_.size()});
    const KeyList key = ReadKey({std::max(heading.end, version.part.begin), version.part.end});
    const std::size_t entries = key.entries.size();
    isAnySeen_ = entries > 1 && !AreQuestions(key.entries) && !AreBlanks(key.entries);
    if (entries == 0 || key.unread.size() > 3 + entries / 2) return std::nullopt;
    if (AreQuestions(key.entries) || AreBlanks(key.entries)) return std::nullopt;
    if (version.isUnclear) return Refused(std::move(section), key, Leftover::Versions);
    const auto matched = MatchEntries(text_, key, section.questions);
    const bool isAllLetters = key.unread.empty() && std::ranges::all_of(key.entries, &KeyEntry::isLetters);
    if (!matched && (heading.heading == AnswerHeading::Clear || isAllLetters))
      return Refused(std::move(section), key, Leftover::Unmatched);
    if (!matched || !IsCredible(key, *matched, heading, section.questions)) {
      hasSeenKey_ = hasSeenKey_ || std::ranges::all_of(key.entries, &KeyEntry::isLetters);
      return std::nullopt;
    }
    if (IsSheetToFill(*matched, section.questions)) {
      isAnySeen_ = false;
      return std::nullopt;
    }
    Accept(section, key, *matched);
    return section;
  }

  /// Whatever follows a heading that says "Answers" and nothing else is a key, even if it can't be read.
  void NoteUnread(const HeadingPlace& heading) {
    const TextSpan line{heading.begin, heading.end};
    if (isAnySeen_ && IsBareAnswerHeading(line.Of(text_))) hasSeenKey_ = true;
  }

  KeySection SectionFrom(std::size_t begin) const {
    return {begin, QuestionsBefore(text_, outline_, begin), {}, {}};
  }

  VersionChoice VersionOf(const KeySection& section, TextSpan key) const {
    return ChooseVersion(text_, outline_.front, {outline_.front.end, section.begin}, key);
  }

  KeyList ReadKey(TextSpan part) const {
    KeyList bare{ReadBareKey(text_, part)};
    return bare.entries.empty() ? ReadKeyList(text_, part) : bare;
  }

  /// What is a key without doubt, but belongs to no questions, goes, so that pupils don't see it.
  std::optional<KeySection> Refused(KeySection section, const KeyList& key, Leftover kind) {
    const auto letters = std::ranges::count_if(key.entries, &KeyEntry::isLetters);
    hasSeenKey_ = hasSeenKey_ || letters == std::ssize(key.entries) || kind == Leftover::Versions;
    const bool isBare = key.entries.front().number == 0;
    const auto choices =
        static_cast<std::size_t>(std::ranges::count_if(section.questions, &OutlinedQuestion::HasOptions));
    constexpr std::size_t kFewest = 2;
    // Versions of keys may be in words; questions that follow such a heading have no letters.
    const bool isOfVersions = kind == Leftover::Versions && letters * 3 >= std::ssize(key.entries);
    const bool isSure =
        isOfVersions || (key.entries.size() >= kFewest && letters * 5 >= std::ssize(key.entries) * 4 &&
                         key.unread.size() * 4 <= key.entries.size());
    // A few letters without numbers can be the answer of one question.
    const bool isCounted = !isBare || (choices >= kFewest && key.entries.size() * 2 > choices &&
                                       key.entries.size() < choices * 2);
    isSurelyUnclear_ = isSurelyUnclear_ || isSure;
    if (!isSure || !isCounted) return std::nullopt;
    const TextSpan whole = Trimmed(text_, {section.begin, text_.size()});
    if (isBare && kind == Leftover::Unmatched && key.entries.size() != choices) {
      section.leftovers = {{Leftover::Miscounted, whole, key.entries.size(), choices}};
    } else {
      section.leftovers = {{kind, whole}};
    }
    return section;
  }

  void Accept(KeySection& section, const KeyList& key, const std::vector<MatchedEntry>& matched) const {
    std::vector<MatchedEntry> placed;
    for (const MatchedEntry& entry : matched) {
      const OutlinedQuestion& question = section.questions[entry.question];
      // Among Cyrillic options Latin letters become clear when all answers are known.
      const bool isClear = FitsQuestion(text_, entry.entry, question) || IsCyrillic(*question.options);
      if (!isClear || IsBlankToFill(text_, entry.entry.answer)) continue;
      placed.push_back(entry);
      if (!entry.entry.IsMiscounted()) section.entries.push_back(entry);
    }
    section.leftovers = LeftoversOf(text_, key, placed);
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

  /// "1. ____" is for pupils to write on.
  bool AreBlanks(const std::vector<KeyEntry>& entries) const {
    const auto isBlank = [this](const KeyEntry& entry) { return IsBlankToFill(text_, entry.answer); };
    return std::ranges::count_if(entries, isBlank) * 2 > std::ssize(entries);
  }

  /// "1. A B C D" at all questions is for pupils to mark.
  bool IsSheetToFill(const std::vector<MatchedEntry>& entries,
                     const std::vector<OutlinedQuestion>& questions) const {
    constexpr std::size_t kFewestOptions = 3;
    std::size_t choices = 0;
    std::size_t whole = 0;
    for (const MatchedEntry& entry : entries) {
      const auto& options = questions[entry.question].options;
      if (!options || entry.entry.IsMiscounted()) continue;
      ++choices;
      const std::size_t named = ReadOptionKey(text_, *options, entry.entry.answer.Of(text_)).options.size();
      whole += named >= kFewestOptions && named == options->labels.size() ? 1 : 0;
    }
    return whole > 1 && whole * 2 > choices;
  }

  /// Answers in words need a clear heading, for they may be questions of another part.
  bool IsCredible(const KeyList& key, const std::vector<MatchedEntry>& matched, const HeadingPlace& heading,
                  const std::vector<OutlinedQuestion>& questions) const {
    if (heading.heading == AnswerHeading::Clear) return !matched.empty();
    const auto namesOption = [&](const MatchedEntry& entry) {
      const OutlinedQuestion& question = questions[entry.question];
      return entry.entry.isLetters || (question.HasOptions() && FitsQuestion(text_, entry.entry, question));
    };
    const auto options = std::ranges::count_if(matched, namesOption);
    constexpr std::ptrdiff_t kFew = 2;
    if (heading.isTitle && options >= kFew && matched.size() == key.entries.size()) return true;
    return matched.size() > 1 && options * 2 > std::ssize(matched);
  }

  /// Without a heading: the last lines, as far as they are nothing but a key.
  std::optional<KeySection> Tail(KeyTailLines lines) {
    const std::optional<std::size_t> begin = BeginOfKeyTail(text_, outline_, lines);
    if (!begin) return std::nullopt;
    KeySection section = SectionFrom(*begin);
    const VersionChoice version = VersionOf(section, {section.begin, text_.size()});
    const KeyList key = ReadKeyList(text_, version.part);
    if (key.entries.size() < 2) return std::nullopt;
    const bool isOnlyKey = lines == KeyTailLines::Keys;
    if (version.isUnclear && isOnlyKey) return Refused(std::move(section), key, Leftover::Versions);
    const auto matched = MatchEntries(text_, key, section.questions);
    if (!matched || version.isUnclear || !IsCompleteKey(*matched, key.entries.size(), section.questions)) {
      hasSeenKey_ = hasSeenKey_ || isOnlyKey;
      return std::nullopt;
    }
    Accept(section, key, *matched);
    return section;
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
  bool isAnySeen_ = false;        ///< answers behind the heading that was looked at last
  bool hasSeenKey_ = false;       ///< letters that came to no questions
  bool isSurelyUnclear_ = false;  ///< a key was seen that no part of it may be taken from
};

}  // namespace

std::vector<OutlinedQuestion> QuestionsBefore(std::u16string_view text, const PaperOutline& outline,
                                              std::size_t end) {
  std::vector<OutlinedQuestion> questions;
  for (const OutlinedQuestion& outlined : outline.questions) {
    // A label may include the line end before it.
    if (Trimmed(text, outlined.label).begin >= end) break;
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

KeySearchResult FindKeySection(std::u16string_view text, const PaperOutline& outline) {
  return KeySectionSearch(text, outline).Search();
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "import/keys/KeyTail.h"

#include "import/keys/KeyMatching.h"
#include "import/keys/KeyReader.h"
#include "import/labels/LineText.h"

#include <algorithm>
#include <map>
#include <vector>

namespace quorvantis {
namespace {

/// The questions of a paper by their numbers, and lines that answer them.
class EarlierQuestions {
 public:
  EarlierQuestions(std::u16string_view text, const PaperOutline& outline)
      : text_(text), questions_(outline.questions) {
    for (std::size_t i = 0; i < questions_.size(); ++i) {
      std::vector<std::size_t>& same = byNumber_[questions_[i].number];
      constexpr std::size_t kMostParts = 8;
      if (same.size() < kMostParts) same.push_back(i);
    }
  }

  /// "13. jade  14. opal", or "1. B because it says so".
  bool AreAnsweredBy(TextSpan line) const {
    const std::vector<KeyEntry> entries = TextEntriesOfLine(text_, line);
    return !entries.empty() && std::ranges::all_of(entries, [this, &line](const KeyEntry& entry) {
      const auto same = byNumber_.find(entry.number);
      return same != byNumber_.end() && std::ranges::any_of(same->second, [&](std::size_t index) {
               return questions_[index].label.end <= line.begin && IsAnswer(entry, questions_[index]);
             });
    });
  }

 private:
  bool IsAnswer(const KeyEntry& entry, const OutlinedQuestion& question) const {
    if (question.HasOptions()) return FitsQuestion(text_, entry, question);
    constexpr std::size_t kLongest = 60;
    const std::u16string_view answer = entry.answer.Of(text_);
    return !answer.empty() && answer.size() <= kLongest && answer.find_first_of(u"?？؟_") == answer.npos;
  }

  std::u16string_view text_;
  const std::vector<OutlinedQuestion>& questions_;
  std::map<int, std::vector<std::size_t>> byNumber_;
};

/// The lines of a paper, looked at from its end.
class TailLines {
 public:
  TailLines(std::u16string_view text, const PaperOutline& outline, KeyTailLines kind)
      : lines_(LinesOf(text, {0, text.size()})), earlier_(text, outline), kind_(kind) {
    KeyLineReader reader(text);
    for (const TextSpan& line : lines_) readings_.push_back(reader.Read(line));
  }

  std::optional<std::size_t> Begin() {
    const std::size_t end = WithoutWishes();
    std::size_t first = end;
    while (first > 0 && IsOfKey(first - 1, end)) --first;
    std::size_t begin = first;
    while (begin < end && !HasAnswers(begin)) ++begin;
    if (begin == end) return std::nullopt;
    return lines_[WithTitles(first, begin)].begin;
  }

 private:
  bool IsAnswer(std::size_t line) const {
    return kind_ == KeyTailLines::KeysAndAnswers && readings_[line].kind == KeyLineKind::Text &&
           earlier_.AreAnsweredBy(lines_[line]);
  }

  bool HasAnswers(std::size_t line) const { return !readings_[line].entries.empty() || IsAnswer(line); }

  std::size_t WithoutWishes() const {
    constexpr int kMostWishes = 2;
    constexpr std::size_t kLongestWish = 40;
    std::size_t end = readings_.size();
    for (int wishes = 0; end > 0 && wishes < kMostWishes; --end) {
      const KeyLineKind kind = readings_[end - 1].kind;
      if (kind == KeyLineKind::Blank) continue;
      const bool isWish = kind == KeyLineKind::Text && lines_[end - 1].Size() <= kLongestWish;
      if (!isWish || IsAnswer(end - 1)) break;
      ++wishes;
    }
    return end;
  }

  bool IsOfKey(std::size_t line, std::size_t end) const {
    const KeyLineKind kind = readings_[line].kind;
    if (kind == KeyLineKind::Text) return IsAnswer(line);
    if (kind != KeyLineKind::NumberRow) return true;
    return line + 1 < end && readings_[line + 1].kind == KeyLineKind::AnswerRow;
  }

  /// A row of numbers and the title of a part belong to the answers behind them.
  std::size_t WithTitles(std::size_t first, std::size_t line) const {
    const auto isTitle = [this](std::size_t at) { return readings_[at].kind == KeyLineKind::Title; };
    while (line > first) {
      const KeyLineKind before = readings_[line - 1].kind;
      const bool isBlank = before == KeyLineKind::Blank && line - 1 > first && isTitle(line - 2);
      if (before != KeyLineKind::NumberRow && !isTitle(line - 1) && !isBlank) break;
      --line;
    }
    return line;
  }

  std::vector<TextSpan> lines_;
  std::vector<KeyLineReading> readings_;
  EarlierQuestions earlier_;
  KeyTailLines kind_;
};

}  // namespace

std::optional<std::size_t> BeginOfKeyTail(std::u16string_view text, const PaperOutline& outline,
                                          KeyTailLines lines) {
  return TailLines(text, outline, lines).Begin();
}

}  // namespace quorvantis

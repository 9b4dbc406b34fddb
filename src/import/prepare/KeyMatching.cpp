// SPDX-License-Identifier: MIT
#include "import/prepare/KeyMatching.h"

#include "import/prepare/OptionKey.h"

#include <algorithm>
#include <cstddef>

namespace quorvantis {
namespace {

/// A run of indices whose numbers rise.
struct NumberedRun {
  std::size_t begin = 0;
  std::size_t end = 0;

  std::size_t Size() const { return end - begin; }
};

template <typename Item>
std::vector<NumberedRun> RisingRuns(const std::vector<Item>& items) {
  std::vector<NumberedRun> runs;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (i == 0 || items[i].number <= items[i - 1].number) runs.push_back({i, i});
    runs.back().end = i + 1;
  }
  return runs;
}

/// Entries of a key in columns, "1. B  11. C" above "2. A  12. D", by their numbers; nothing if one occurs
/// twice.
std::vector<KeyEntry> ByNumber(std::vector<KeyEntry> entries) {
  std::ranges::stable_sort(entries, {}, &KeyEntry::number);
  const auto twice = std::ranges::adjacent_find(entries, {}, &KeyEntry::number);
  if (twice != entries.end()) return {};
  return entries;
}

/// Runs of entries laid on runs of questions.
class RunMatching {
 public:
  RunMatching(std::u16string_view text, const std::vector<KeyEntry>& entries,
              const std::vector<OutlinedQuestion>& questions)
      : text_(text), entries_(entries), questions_(questions) {}

  std::optional<std::vector<MatchedEntry>> Match() const {
    const std::vector<NumberedRun> keys = RisingRuns(entries_);
    const std::vector<NumberedRun> papers = RisingRuns(questions_);
    constexpr std::size_t kMostRuns = 60;
    if (keys.empty() || keys.size() > papers.size() || papers.size() > kMostRuns) return std::nullopt;
    std::vector<std::size_t> first;
    std::vector<std::size_t> last;
    const bool isSeveral = papers.size() > 1;
    if (!Lay(keys, papers, isSeveral, first)) return std::nullopt;
    // Laid from the other end, it comes to the same if there is only one way.
    if (!LayFromEnd(keys, papers, isSeveral, last) || first != last) return std::nullopt;
    std::vector<MatchedEntry> matched;
    for (std::size_t i = 0; i < keys.size(); ++i) {
      const std::vector<MatchedEntry> part = Common(keys[i], papers[first[i]]);
      matched.insert(matched.end(), part.begin(), part.end());
    }
    return matched;
  }

 private:
  bool Lay(const std::vector<NumberedRun>& keys, const std::vector<NumberedRun>& papers, bool isSeveral,
           std::vector<std::size_t>& laid) const {
    std::size_t next = 0;
    for (const NumberedRun& key : keys) {
      while (next < papers.size() && !Fits(key, papers[next], isSeveral)) ++next;
      if (next == papers.size()) return false;
      laid.push_back(next++);
    }
    return true;
  }

  bool LayFromEnd(const std::vector<NumberedRun>& keys, const std::vector<NumberedRun>& papers,
                  bool isSeveral, std::vector<std::size_t>& laid) const {
    std::size_t next = papers.size();
    for (auto key = keys.rbegin(); key != keys.rend(); ++key) {
      while (next > 0 && !Fits(*key, papers[next - 1], isSeveral)) --next;
      if (next == 0) return false;
      laid.insert(laid.begin(), --next);
    }
    return true;
  }

  /// Where there are several parts, a part of the key must begin like that of the paper and say most of it.
  bool Fits(const NumberedRun& key, const NumberedRun& paper, bool isSeveral) const {
    const std::vector<MatchedEntry> common = Common(key, paper);
    if (common.empty() || common.size() * 2 < key.Size()) return false;
    if (isSeveral) {
      const bool beginsAlike = entries_[key.begin].number == questions_[paper.begin].number;
      if (!beginsAlike || common.size() != key.Size() || common.size() * 2 < paper.Size()) return false;
    }
    std::size_t choices = 0;
    std::size_t fitting = 0;
    for (const MatchedEntry& entry : common) {
      const OutlinedQuestion& question = questions_[entry.question];
      if (!question.HasOptions()) continue;
      ++choices;
      if (FitsQuestion(text_, entry.entry, question)) ++fitting;
    }
    return fitting * 10 >= choices * 7;
  }

  std::vector<MatchedEntry> Common(const NumberedRun& key, const NumberedRun& paper) const {
    std::vector<MatchedEntry> common;
    std::size_t question = paper.begin;
    for (std::size_t i = key.begin; i < key.end; ++i) {
      while (question < paper.end && questions_[question].number < entries_[i].number) ++question;
      if (question < paper.end && questions_[question].number == entries_[i].number)
        common.push_back({entries_[i], question});
    }
    return common;
  }

  std::u16string_view text_;
  const std::vector<KeyEntry>& entries_;
  const std::vector<OutlinedQuestion>& questions_;
};

/// By order: as many answers as choice questions.
std::optional<std::vector<MatchedEntry>> MatchByOrder(std::u16string_view text,
                                                      const std::vector<KeyEntry>& entries,
                                                      const std::vector<OutlinedQuestion>& questions) {
  std::vector<MatchedEntry> matched;
  for (std::size_t i = 0; i < questions.size(); ++i) {
    if (!questions[i].HasOptions()) continue;
    if (matched.size() == entries.size()) return std::nullopt;
    const KeyEntry& entry = entries[matched.size()];
    if (!FitsQuestion(text, entry, questions[i])) return std::nullopt;
    matched.push_back({entry, i});
  }
  if (matched.size() != entries.size()) return std::nullopt;
  return matched;
}

}  // namespace

bool FitsQuestion(std::u16string_view text, const KeyEntry& entry, const OutlinedQuestion& question) {
  return !question.HasOptions() || ReadOptionKey(text, *question.options, entry.answer.Of(text)).IsClear();
}

std::optional<std::vector<MatchedEntry>> MatchEntries(std::u16string_view text,
                                                      const std::vector<KeyEntry>& entries,
                                                      const std::vector<OutlinedQuestion>& questions) {
  if (entries.empty() || questions.empty()) return std::nullopt;
  if (entries.front().number == 0) return MatchByOrder(text, entries, questions);
  if (RisingRuns(questions).size() == 1) {
    if (const std::vector<KeyEntry> sorted = ByNumber(entries); !sorted.empty())
      return RunMatching(text, sorted, questions).Match();
  }
  return RunMatching(text, entries, questions).Match();
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "import/keys/KeyMatching.h"

#include "import/keys/KeyParts.h"
#include "import/keys/OptionKey.h"

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

/// The titles of the parts of a key and of a paper.
class KeyPartNames {
 public:
  KeyPartNames(std::u16string_view text, const KeyList& key, const std::vector<OutlinedQuestion>& questions)
      : entries_(key.entries.size()), paper_(PartTitlesOf(text, questions)), questions_(questions.size()) {
    for (std::size_t title = 0; title < key.titles.size(); ++title) {
      const bool isLast = title + 1 == key.titles.size();
      const std::size_t end = isLast ? entries_.size() : key.titles[title + 1].first;
      const std::u16string_view written = key.titles[title].title.Of(text);
      if (!IsTitleOfPart(written)) continue;
      const PartName name = PartNameOf(written);
      for (std::size_t i = key.titles[title].first; i < end; ++i) entries_[i] = name;
    }
    for (const PartTitle& title : paper_) questions_[title.question] = title.name;
  }

  /// The name of the part that an entry belongs to.
  const PartName& OfEntry(std::size_t entry) const { return entries_[entry]; }

  /// The name in front of a question, if there is one.
  const PartName& OfQuestion(std::size_t question) const { return questions_[question]; }

  /// Whether an answer has come to another part than that in whose part of the key it stands.
  bool AnyMisplaced(const std::vector<KeyEntry>& entries, const std::vector<MatchedEntry>& matched) const {
    if (paper_.empty()) return false;
    return std::ranges::any_of(matched, [&](const MatchedEntry& one) {
      const auto entry = std::ranges::lower_bound(entries, one.entry.begin, {}, &KeyEntry::begin);
      return entry != entries.end() &&
             IsInOtherPart(paper_, one.question, OfEntry(static_cast<std::size_t>(entry - entries.begin())));
    });
  }

 private:
  std::vector<PartName> entries_;
  std::vector<PartTitle> paper_;
  std::vector<PartName> questions_;
};

/// Runs of entries laid on runs of questions.
class RunMatching {
 public:
  RunMatching(std::u16string_view text, const std::vector<KeyEntry>& entries,
              const std::vector<OutlinedQuestion>& questions, const KeyPartNames& names)
      : text_(text), entries_(entries), questions_(questions), names_(names) {}

  std::optional<std::vector<MatchedEntry>> Match() const {
    const std::vector<NumberedRun> keys = RisingRuns(entries_);
    const std::vector<NumberedRun> papers = RisingRuns(questions_);
    constexpr std::size_t kMostRuns = 60;
    if (keys.empty() || keys.size() > papers.size() || papers.size() > kMostRuns) return std::nullopt;
    const bool isSeveral = papers.size() > 1;
    std::vector<std::size_t> laid;
    if (isSeveral) laid = LaidByNames(keys, papers);
    if (laid.empty()) {
      std::vector<std::size_t> last;
      if (!Lay(keys, papers, isSeveral, laid)) return std::nullopt;
      // Laid from the other end, it comes to the same if there is only one way.
      if (!LayFromEnd(keys, papers, isSeveral, last) || laid != last) return std::nullopt;
    }
    std::vector<MatchedEntry> matched;
    for (std::size_t i = 0; i < keys.size(); ++i) {
      const std::vector<MatchedEntry> part = Common(keys[i], papers[laid[i]]);
      matched.insert(matched.end(), part.begin(), part.end());
    }
    return matched;
  }

 private:
  /// The run of the paper for each of the key, if the titles of all say it; else none.
  std::vector<std::size_t> LaidByNames(const std::vector<NumberedRun>& keys,
                                       const std::vector<NumberedRun>& papers) const {
    std::vector<std::size_t> laid;
    for (const NumberedRun& key : keys) {
      std::size_t found = papers.size();
      for (std::size_t i = 0; i < papers.size(); ++i) {
        if (AreSameParts(names_.OfEntry(key.begin), names_.OfQuestion(papers[i].begin)) != SameParts::Yes)
          continue;
        if (found < papers.size()) return {};
        found = i;
      }
      const bool isTaken = std::ranges::find(laid, found) != laid.end();
      if (found == papers.size() || isTaken || !FitsByName(key, papers[found])) return {};
      laid.push_back(found);
    }
    return laid;
  }

  bool FitsByName(const NumberedRun& key, const NumberedRun& paper) const {
    const std::vector<MatchedEntry> common = Common(key, paper);
    return common.size() * 2 > key.Size() && AreAmongOptions(common);
  }

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
      const PartName& name = names_.OfEntry(key.begin);
      if (AreSameParts(name, names_.OfQuestion(paper.begin)) == SameParts::No) return false;
    }
    return AreAmongOptions(common);
  }

  bool AreAmongOptions(const std::vector<MatchedEntry>& common) const {
    std::size_t choices = 0;
    std::size_t fitting = 0;
    for (const MatchedEntry& entry : common) {
      const OutlinedQuestion& question = questions_[entry.question];
      if (!question.HasOptions() || entry.entry.IsMiscounted()) continue;
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
  const KeyPartNames& names_;
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
  return !question.HasOptions() || entry.IsMiscounted() ||
         ReadOptionKey(text, *question.options, entry.answer.Of(text)).IsClear();
}

std::optional<std::vector<MatchedEntry>> MatchEntries(std::u16string_view text, const KeyList& key,
                                                      const std::vector<OutlinedQuestion>& questions) {
  const std::vector<KeyEntry>& entries = key.entries;
  if (entries.empty() || questions.empty()) return std::nullopt;
  if (entries.front().number == 0) return MatchByOrder(text, entries, questions);
  const KeyPartNames names(text, key, questions);
  std::vector<KeyEntry> inOrder;
  if (RisingRuns(questions).size() == 1) inOrder = ByNumber(entries);
  if (inOrder.empty()) inOrder = entries;
  auto matched = RunMatching(text, inOrder, questions, names).Match();
  if (matched && names.AnyMisplaced(entries, *matched)) return std::nullopt;
  return matched;
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "bank/near/NearQuestions.h"

#include "bank/near/ShinglesCache.h"
#include "likeness/QuestionRelation.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace quorvantis {
namespace {

constexpr std::size_t kMostEffort = 20'000;   // in comparisons of sketches; beyond, a question is crowded
constexpr std::size_t kExactEffort = 100;     // what an exact comparison that finds nothing takes of it
constexpr std::size_t kBetweenPolls = 4'096;  // comparisons

/// A question with a key by which it is looked for.
using Keyed = std::pair<std::uint64_t, std::size_t>;

/// Calls `visit` with the questions of each key that several have, ascending.
void VisitRuns(std::vector<Keyed> keyed, const std::function<void(const std::vector<std::size_t>&)>& visit) {
  std::sort(keyed.begin(), keyed.end());
  std::vector<std::size_t> run;
  for (std::size_t i = 0; i < keyed.size(); ++i) {
    run.push_back(keyed[i].second);
    const bool isLast = i + 1 == keyed.size() || keyed[i + 1].first != keyed[i].first;
    if (!isLast) continue;
    if (run.size() > 1) visit(run);
    run.clear();
  }
}

class NearSearch {
 public:
  NearSearch(std::span<const QuestionSketch> sketches, const ShinglesAt& shinglesAt,
             const std::function<bool()>& isCancelled)
      : sketches_(sketches), shingles_(shinglesAt), isCancelled_(isCancelled) {}

  NearQuestions Find() {
    FindEqual();
    partners_.resize(sketches_.size());
    effort_.resize(sketches_.size());
    for (std::size_t band = 0; band < QuestionSketch::kBands && !found_.isCancelled; ++band) SearchBand(band);
    const auto isBefore = [](const NearPair& a, const NearPair& b) {
      return std::pair(a.first, a.second) < std::pair(b.first, b.second);
    };
    std::sort(found_.pairs.begin(), found_.pairs.end(), isBefore);
    for (std::size_t i = 0; i < sketches_.size(); ++i) {
      if (IsCrowded(i)) found_.crowded.push_back(i);
    }
    return std::move(found_);
  }

 private:
  void FindEqual() {
    stands_.assign(sketches_.size(), true);
    std::vector<Keyed> keyed;
    keyed.reserve(sketches_.size());
    for (std::size_t i = 0; i < sketches_.size(); ++i) {
      if (!sketches_[i].IsEmpty()) keyed.emplace_back(sketches_[i].Fingerprint(), i);
    }
    VisitRuns(std::move(keyed), [this](const std::vector<std::size_t>& run) { SplitIntoGroups(run); });
    std::sort(found_.equal.begin(), found_.equal.end());
  }

  /// A run has one fingerprint, so nearly always one set of shingles.
  void SplitIntoGroups(const std::vector<std::size_t>& run) {
    std::vector<std::vector<std::size_t>> groups;
    for (const std::size_t i : run) {
      if (IsStopped()) return;
      const auto group = std::find_if(
          groups.begin(), groups.end(),
          [&](const std::vector<std::size_t>& each) { return shingles_.Likeness(each.front(), i) == 1; });
      if (group == groups.end()) {
        groups.push_back({i});
      } else {
        group->push_back(i);
        stands_[i] = false;
      }
    }
    for (std::vector<std::size_t>& group : groups) {
      if (group.size() > 1) found_.equal.push_back(std::move(group));
    }
  }

  void SearchBand(std::size_t band) {
    std::vector<Keyed> keyed;
    keyed.reserve(sketches_.size());
    for (std::size_t i = 0; i < sketches_.size(); ++i) {
      if (stands_[i] && !sketches_[i].IsEmpty()) keyed.emplace_back(sketches_[i].Band(band), i);
    }
    VisitRuns(std::move(keyed), [&](const std::vector<std::size_t>& run) { SearchRun(run, band); });
  }

  /// Two crowded ones are not compared, so a run of crowded ones takes no time in proportion to its square.
  void SearchRun(const std::vector<std::size_t>& run, std::size_t band) {
    std::vector<std::size_t> roomy;  // of the rest of the run, descending
    for (auto i = run.rbegin(); i != run.rend(); ++i) {
      if (!IsCrowded(*i)) roomy.push_back(*i);
    }
    for (auto i = run.begin(); i != run.end() && !found_.isCancelled; ++i) {
      if (!roomy.empty() && roomy.back() == *i) roomy.pop_back();
      auto j = i + 1;
      for (; j != run.end() && !IsCrowded(*i) && !IsStopped(); ++j) Meet(*i, *j, band);
      if (j != run.end()) MeetRoomy(*i, *j, roomy, band);
    }
  }

  /// Meets those from `from` on that have room, and drops from `roomy` those that have none any more.
  void MeetRoomy(std::size_t i, std::size_t from, std::vector<std::size_t>& roomy, std::size_t band) {
    for (const std::size_t j : roomy) {
      if (j >= from && !IsCrowded(j) && !IsStopped()) Meet(i, j, band);
    }
    std::erase_if(roomy, [this](std::size_t j) { return IsCrowded(j); });
  }

  void Meet(std::size_t i, std::size_t j, std::size_t band) {
    for (std::size_t earlier = 0; earlier < band; ++earlier) {
      if (sketches_[i].Band(earlier) == sketches_[j].Band(earlier)) return;  // met there
    }
    std::size_t effort = 1;
    if (EstimateSimilarity(sketches_[i], sketches_[j]) >= kWorthAnExactLook) {
      const double likeness = shingles_.Likeness(i, j);
      if (likeness >= kAlike) {
        found_.pairs.push_back({i, j, likeness});
        ++partners_[i];
        ++partners_[j];
        return;
      }
      effort = kExactEffort;
    }
    effort_[i] += effort;
    effort_[j] += effort;
  }

  bool IsCrowded(std::size_t i) const {
    return partners_[i] >= NearQuestions::kMostPartners || effort_[i] >= kMostEffort;
  }

  bool IsStopped() {
    if (++sincePoll_ >= kBetweenPolls) {
      sincePoll_ = 0;
      found_.isCancelled = found_.isCancelled || (isCancelled_ && isCancelled_());
    }
    return found_.isCancelled;
  }

  std::span<const QuestionSketch> sketches_;
  ShinglesCache shingles_;
  const std::function<bool()>& isCancelled_;
  std::vector<bool> stands_;  // not for a group that another stands for
  std::vector<std::size_t> partners_;
  std::vector<std::size_t> effort_;
  std::size_t sincePoll_ = 0;
  NearQuestions found_;
};

}  // namespace

NearQuestions FindNearQuestions(std::span<const QuestionSketch> sketches, const ShinglesAt& shinglesAt,
                                const std::function<bool()>& isCancelled) {
  return NearSearch(sketches, shinglesAt, isCancelled).Find();
}

}  // namespace quorvantis

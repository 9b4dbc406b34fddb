// SPDX-License-Identifier: MIT
#include "bank/reuse/SharedWithOlder.h"

#include "platform/Progress.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace quorvantis {
namespace {

class ReuseSearch {
 public:
  ReuseSearch(std::span<const OlderQuestion> older, const OlderAt& olderAt, Progress& progress)
      : older_(older), olderAt_(olderAt), progress_(progress) {}

  /// The uses of a question of the open exam.
  void Look(std::size_t place, const ComparedQuestion& question) {
    if (question.All().IsEmpty()) return;
    ++withContent_;
    const QuestionSketch sketch(question.All());
    std::map<std::size_t, bool> exams;  // and whether they have the same question, not only a variant
    for (std::size_t i = 0; i < older_.size(); ++i) {
      if (EstimateSimilarity(sketch, older_[i].sketch) < kWorthAnExactLook) continue;
      if (progress_.IsCancelled()) return;
      const std::optional<QuestionRelation> relation = RelationTo(question, i);
      if (!relation) continue;
      report_.uses.push_back({place, i, *relation});
      bool& isSame = exams[older_[i].exam];
      isSame = isSame || IsSameQuestion(*relation);
    }
    Count(exams);
  }

  ReuseReport Report() {
    std::sort(report_.uses.begin(), report_.uses.end(), [](const EarlierUse& a, const EarlierUse& b) {
      return std::tuple(a.question, !IsSameQuestion(a.relation), a.older) <
             std::tuple(b.question, !IsSameQuestion(b.relation), b.older);
    });
    for (auto& [exam, part] : parts_) {
      part.exam = exam;
      part.share = static_cast<double>(part.same) / static_cast<double>(withContent_);
      report_.exams.push_back(part);
    }
    std::stable_sort(report_.exams.begin(), report_.exams.end(),
                     [](const SharedPart& a, const SharedPart& b) {
                       return std::pair(a.same, a.variants) > std::pair(b.same, b.variants);
                     });
    return std::move(report_);
  }

 private:
  /// Nothing unless it is the same question or a variant.
  std::optional<QuestionRelation> RelationTo(const ComparedQuestion& question, std::size_t older) const {
    const std::optional<ComparedQuestion> other = olderAt_(older);
    if (!other) return std::nullopt;
    const QuestionRelation relation = RelationOf(question, *other);
    return IsSameQuestion(relation) || IsVariant(relation) ? std::optional(relation) : std::nullopt;
  }

  void Count(const std::map<std::size_t, bool>& exams) {
    bool isUsed = false;
    for (const auto& [exam, isSame] : exams) {
      SharedPart& part = parts_[exam];
      ++(isSame ? part.same : part.variants);
      isUsed = isUsed || isSame;
    }
    if (!isUsed) ++report_.unused;
  }

  std::span<const OlderQuestion> older_;
  const OlderAt& olderAt_;
  Progress& progress_;
  std::map<std::size_t, SharedPart> parts_;
  std::size_t withContent_ = 0;
  ReuseReport report_;
};

}  // namespace

ReuseReport SharedWithOlder(std::span<const ComparedQuestion> openExam, std::span<const OlderQuestion> older,
                            const OlderAt& olderAt, Progress& progress) {
  ReuseSearch search(older, olderAt, progress);
  for (std::size_t i = 0; i < openExam.size() && !progress.IsCancelled(); ++i) {
    search.Look(i, openExam[i]);
    progress.Report(i + 1, openExam.size());
  }
  ReuseReport report = search.Report();
  report.isCancelled = progress.IsCancelled();
  return report;
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "bank/reuse/SharedWithOlder.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace quorvantis {
namespace {

class ReuseSearch {
 public:
  explicit ReuseSearch(std::span<const OlderQuestion> older) : older_(older) {
    sketches_.reserve(older.size());
    for (const OlderQuestion& question : older) sketches_.push_back(question.sketch);
  }

  /// The uses of a question of the open exam: the same before variants.
  void Look(std::size_t place, const ComparedQuestion& question,
            const std::function<ComparedQuestion(std::size_t)>& olderAt) {
    if (question.All().IsEmpty()) return;
    ++withContent_;
    std::map<std::size_t, bool> exams;  // and whether they have the same question, not only a variant
    for (const std::size_t candidate : LikelyAlike(QuestionSketch(question.All()), sketches_)) {
      const QuestionRelation relation = RelationOf(question, olderAt(candidate));
      if (!IsSameQuestion(relation) && !IsVariant(relation)) continue;
      report_.uses.push_back({place, candidate, relation});
      bool& isSame = exams[older_[candidate].exam];
      isSame = isSame || IsSameQuestion(relation);
    }
    bool isUsed = false;
    for (const auto& [exam, isSame] : exams) {
      SharedPart& part = parts_[exam];
      ++(isSame ? part.same : part.variants);
      isUsed = isUsed || isSame;
    }
    if (!isUsed) ++report_.unused;
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
  std::span<const OlderQuestion> older_;
  std::vector<QuestionSketch> sketches_;
  std::map<std::size_t, SharedPart> parts_;
  std::size_t withContent_ = 0;
  ReuseReport report_;
};

}  // namespace

ReuseReport SharedWithOlder(std::span<const ComparedQuestion> openExam, std::span<const OlderQuestion> older,
                            const std::function<ComparedQuestion(std::size_t older)>& olderAt,
                            const std::function<bool()>& isCancelled) {
  ReuseSearch search(older);
  bool isStopped = false;
  for (std::size_t i = 0; i < openExam.size() && !isStopped; ++i) {
    isStopped = isCancelled && isCancelled();
    if (!isStopped) search.Look(i, openExam[i], olderAt);
  }
  ReuseReport report = search.Report();
  report.isCancelled = isStopped;
  return report;
}

}  // namespace quorvantis

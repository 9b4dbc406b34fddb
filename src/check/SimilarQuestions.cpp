// SPDX-License-Identifier: MIT
#include "check/SimilarQuestions.h"

#include "likeness/QuestionRelation.h"
#include "likeness/TextSketch.h"
#include "text/NumberText.h"

#include <algorithm>
#include <optional>
#include <unordered_map>
#include <utility>

namespace quorvantis {
namespace {

constexpr double kWorthComparing = 0.7;   // of the texts, by their sketches
constexpr std::size_t kIndexed = 16;      // hashes of a sketch; alike texts share most of them
constexpr std::size_t kShared = 5;        // at least that many, or half of those that there are
constexpr std::size_t kCompared = 8;      // of the candidates for a question
constexpr std::size_t kMostOfAHash = 64;  // a shingle of more texts ("Which") tells little

/// A question that has been looked at; made ready for comparing when it is first needed.
class SeenQuestion {
 public:
  SeenQuestion(const CheckedQuestion& question, TextSketch sketch)
      : question_(&question), sketch_(std::move(sketch)) {}

  int Number() const { return question_->number; }

  bool IsSameAs(SeenQuestion& other) {
    if (sketch_.Likeness(other.sketch_) < kWorthComparing) return false;
    return IsSameQuestion(RelationOf(Compared(), other.Compared()));
  }

 private:
  /// Within an exam files are known by their names.
  const ComparedQuestion& Compared() {
    if (!compared_) {
      const ExamQuestion& question = question_->question;
      std::vector<std::u16string> files(question.attachmentNames.begin(), question.attachmentNames.end());
      std::erase(files, std::u16string());
      compared_.emplace(ContentOf(question, std::move(files)));
    }
    return *compared_;
  }

  const CheckedQuestion* question_;
  TextSketch sketch_;
  std::optional<ComparedQuestion> compared_;
};

/// The questions that have been looked at, by the smallest hashes of their texts.
class SketchIndex {
 public:
  /// The best candidates for being alike, by how much they share and then by number.
  std::vector<std::size_t> Candidates(const TextSketch& sketch) const {
    std::vector<std::size_t> shared(count_);
    const std::size_t hashes = std::min(sketch.Hashes().size(), kIndexed);
    for (std::size_t i = 0; i < hashes; ++i) {
      const auto found = questions_.find(sketch.Hashes()[i]);
      if (found == questions_.end()) continue;
      for (const std::size_t question : found->second) ++shared[question];
    }
    const std::size_t enough = std::min(kShared, (hashes + 1) / 2);
    std::vector<std::size_t> best;
    for (std::size_t question = 0; question < count_; ++question) {
      if (shared[question] >= enough) best.push_back(question);
    }
    std::stable_sort(best.begin(), best.end(),
                     [&shared](std::size_t a, std::size_t b) { return shared[a] > shared[b]; });
    best.resize(std::min(best.size(), kCompared));
    return best;
  }

  /// The next question.
  void Add(const TextSketch& sketch) {
    const std::size_t hashes = std::min(sketch.Hashes().size(), kIndexed);
    for (std::size_t i = 0; i < hashes; ++i) {
      std::vector<std::size_t>& questions = questions_[sketch.Hashes()[i]];
      if (questions.size() < kMostOfAHash) questions.push_back(count_);
    }
    ++count_;
  }

 private:
  std::unordered_map<std::uint32_t, std::vector<std::size_t>> questions_;
  std::size_t count_ = 0;
};

}  // namespace

void NearlyEqualQuestions::Check(const CheckedExam& exam, FindingList& findings) const {
  std::vector<SeenQuestion> seen;
  SketchIndex index;
  for (const CheckedQuestion& question : exam.questions) {
    const std::u16string text = Normalised(question.text);
    if (text.empty()) continue;
    const TextSketch sketch(text);
    const std::vector<std::size_t> candidates = index.Candidates(sketch);
    SeenQuestion compared(question, sketch);
    const auto same = std::find_if(candidates.begin(), candidates.end(),
                                   [&](std::size_t each) { return compared.IsSameAs(seen[each]); });
    if (same != candidates.end()) {
      findings.Add({question.number, ExamFieldName::QuestionText}, {FormatInteger(seen[*same].Number())});
    }
    index.Add(sketch);
    seen.push_back(std::move(compared));
  }
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "check/SimilarQuestions.h"

#include "check/Similarity.h"
#include "text/LineBreaks.h"
#include "text/NumberText.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace quorvantis {
namespace {

constexpr double kAlike = 0.8;            // of the texts
constexpr double kOptionsAlike = 0.6;     // of the options together
constexpr std::size_t kIndexed = 16;      // hashes of a sketch; alike texts share most of them
constexpr std::size_t kShared = 5;        // at least that many, or half of those that there are
constexpr std::size_t kCompared = 8;      // of the candidates for a question
constexpr std::size_t kMostOfAHash = 64;  // a shingle of more texts ("Which") tells little

/// What is compared of a question.
struct ComparedQuestion {
  const CheckedQuestion* question = nullptr;
  std::u16string text;  ///< normalised
  TextSketch sketch;
};

std::u16string AllOptions(const CheckedQuestion& question) {
  auto options = question.options;
  std::sort(options.begin(), options.end());
  std::u16string all;
  for (const std::u16string_view option : options) all.append(option).append(u"\n");
  return Normalised(all);
}

std::u16string DigitsOf(std::u16string_view text) {
  std::u16string digits;
  for (const char16_t unit : text) {
    if (IsDigit(unit)) {
      digits.push_back(unit);
    } else if (!digits.empty() && digits.back() != u' ') {
      digits.push_back(u' ');
    }
  }
  return digits;
}

/// Takes the lines away that both begin or end with, which may be a passage for several questions. A last
/// common line stays if it is all that there is.
void DropCommonLines(std::u16string_view& a, std::u16string_view& b) {
  const auto [inA, inB] = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
  if (inA == a.end() && inB == b.end()) return;
  const std::u16string_view common = a.substr(0, static_cast<std::size_t>(inA - a.begin()));
  const std::size_t line = common.rfind(u'\n') + 1;  // npos + 1 is 0
  a.remove_prefix(line);
  b.remove_prefix(line);
  const auto [fromA, fromB] = std::mismatch(a.rbegin(), a.rend(), b.rbegin(), b.rend());
  const std::u16string_view end = a.substr(static_cast<std::size_t>(a.rend() - fromA));
  const std::size_t cut = end.find(u'\n');
  const std::size_t tail = cut == end.npos ? 0 : end.size() - cut;
  a.remove_suffix(tail);
  b.remove_suffix(tail);
}

bool AreAlike(const ComparedQuestion& a, const ComparedQuestion& b) {
  if (a.sketch.Likeness(b.sketch) < kAlike || DigitsOf(a.text) != DigitsOf(b.text)) return false;
  if (a.question->question.attachmentNames != b.question->question.attachmentNames) return false;
  const std::u16string ofA = WithLineEnds(a.question->text, u"\n");
  const std::u16string ofB = WithLineEnds(b.question->text, u"\n");
  std::u16string_view ownA = ofA;
  std::u16string_view ownB = ofB;
  DropCommonLines(ownA, ownB);
  const TextSketch sketchA(Normalised(ownA));
  if (sketchA.Likeness(TextSketch(Normalised(ownB))) < kAlike) return false;
  const TextSketch optionsA(AllOptions(*a.question));
  return optionsA.Likeness(TextSketch(AllOptions(*b.question))) >= kOptionsAlike;
}

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
  std::vector<ComparedQuestion> seen;
  SketchIndex index;
  for (const CheckedQuestion& question : exam.questions) {
    std::u16string text = Normalised(question.text);
    if (text.empty()) continue;
    ComparedQuestion compared{&question, std::move(text), {}};
    compared.sketch = TextSketch(compared.text);
    for (const std::size_t candidate : index.Candidates(compared.sketch)) {
      if (!AreAlike(seen[candidate], compared)) continue;
      findings.Add({question.number, ExamFieldName::QuestionText},
                   {FormatInteger(seen[candidate].question->number)});
      break;
    }
    index.Add(compared.sketch);
    seen.push_back(std::move(compared));
  }
}

}  // namespace quorvantis

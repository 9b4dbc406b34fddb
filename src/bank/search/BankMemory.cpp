// SPDX-License-Identifier: MIT
#include "bank/search/BankMemory.h"

#include "bank/search/BankQuestions.h"

#include <map>
#include <optional>
#include <utility>

namespace quorvantis {

QuestionContent ContentOfHit(const BankQuestion& question) {
  ExamQuestion whole;
  whole.kind = question.kind;
  whole.text = question.text;
  whole.options = question.options;
  whole.answerText = question.answerText;
  whole.essayAnswer = question.essayAnswer;
  for (unsigned i = 0; i < kOptionCount; ++i) {
    const unsigned bit = 1U << (kOptionCount - 1 - i);
    if ((static_cast<unsigned>(question.answerMask) & bit) != 0)
      whole.answerLetters.push_back(static_cast<char16_t>(u'a' + i));
  }
  return IndexedContent(whole, question.files);
}

BankMemory::BankMemory(BankIndex& index) : index_(index) {
  try {
    Statement rows = index.Data().Prepare(
        "SELECT question.id, exam, number, sketch FROM question "
        "JOIN content ON content.question = question.id ORDER BY exam, number");
    while (rows.Step()) {
      const auto sketch = QuestionSketch::FromBytes(rows.Bytes(3));
      if (!sketch) continue;
      const auto exam = static_cast<std::size_t>(rows.Integer(1));
      older_.push_back({exam, static_cast<int>(rows.Integer(2)), *sketch});
      places_.push_back({rows.Integer(0), rows.Integer(1)});
    }
  } catch (const DatabaseError& error) {
    problem_ = index.ProblemAfter(error);
  }
}

BankLikeness BankMemory::Like(const std::vector<QuestionContent>& questions,
                              const std::filesystem::path& self,
                              const std::function<bool()>& isCancelled) const {
  BankProblem problem;
  std::int64_t own = 0;
  for (const BankExam& exam : index_.Exams(problem)) {
    if (exam.path == self) own = exam.id;
  }
  return Compare(
      questions, [own](const Place& place) { return place.exam == own; }, isCancelled);
}

BankLikeness BankMemory::Elsewhere(const BankQuestion& question) const {
  return Compare({ContentOfHit(question)}, [&](const Place& place) { return place.question == question.id; },
                 {});
}

BankLikeness BankMemory::Compare(const std::vector<QuestionContent>& questions,
                                 const std::function<bool(const Place&)>& isLeftOut,
                                 const std::function<bool()>& isCancelled) const {
  BankLikeness likeness;
  likeness.problem = problem_;
  likeness.uses.resize(questions.size());
  std::vector<ComparedQuestion> open;
  open.reserve(questions.size());
  for (const QuestionContent& content : questions) open.emplace_back(content);
  std::vector<OlderQuestion> older;
  std::vector<std::int64_t> identifiers;
  for (std::size_t i = 0; i < older_.size(); ++i) {
    if (isLeftOut(places_[i])) continue;
    older.push_back(older_[i]);
    identifiers.push_back(places_[i].question);
  }
  try {
    BankQuestions reader(index_);
    const auto olderAt = [&](std::size_t place) {
      const std::optional<BankQuestion> question = reader.Read(identifiers[place]);
      return ComparedQuestion(question ? ContentOfHit(*question) : QuestionContent());
    };
    const ReuseReport report = SharedWithOlder(open, older, olderAt, isCancelled);
    likeness.isCancelled = report.isCancelled;
    Fill(report, older, likeness);
  } catch (const DatabaseError& error) {
    likeness.problem = index_.ProblemAfter(error);
  }
  return likeness;
}

void BankMemory::Fill(const ReuseReport& report, const std::vector<OlderQuestion>& older,
                      BankLikeness& likeness) const {
  std::map<std::size_t, BankExam> exams;
  for (const BankExam& exam : index_.Exams(likeness.problem)) exams[static_cast<std::size_t>(exam.id)] = exam;
  for (const EarlierUse& use : report.uses) {
    const OlderQuestion& found = older[use.older];
    likeness.uses[use.question].push_back({exams[found.exam], found.number, use.relation});
  }
  likeness.exams.reserve(report.exams.size());
  for (const SharedPart& part : report.exams)
    likeness.exams.push_back({exams[part.exam], part.same, part.variants, part.share});
}

}  // namespace quorvantis

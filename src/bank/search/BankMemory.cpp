// SPDX-License-Identifier: MIT
#include "bank/search/BankMemory.h"

#include "bank/near/MixedBits.h"
#include "bank/search/BankQuestions.h"
#include "bank/search/UnchangedExams.h"
#include "platform/Progress.h"

#include <map>
#include <optional>
#include <string_view>
#include <utility>

namespace quorvantis {
namespace {

/// Of two indexes with other questions it is not the same: those of an exam follow from its file.
std::uint64_t StateOfIndex(const BankIndex& index) {
  auto state = static_cast<std::uint64_t>(index.Data().Number("SELECT max(id) FROM question"));
  Statement exams = index.Data().Prepare("SELECT id, hash FROM exam ORDER BY id");
  while (exams.Step()) {
    state = MixedBits(state ^ static_cast<std::uint64_t>(exams.Integer(0)));
    state = MixedBits(state ^ std::hash<std::string_view>{}(exams.Bytes(1)));
  }
  return state;
}

/// Reads the older questions that are worth a comparison, and keeps where they stand.
class OlderReader {
 public:
  OlderReader(BankIndex& index, const FileDigest& digest, std::span<const OlderQuestion> older,
              const std::vector<std::int64_t>& identifiers,
              const std::function<bool(const BankQuestion&)>& isLeftOut)
      : older_(older),
        identifiers_(identifiers),
        isLeftOut_(isLeftOut),
        rows_(index),
        unchanged_(index, digest) {}

  std::optional<ComparedQuestion> Read(std::size_t place) {
    const std::optional<BankQuestion> question = rows_.Read(identifiers_[place]);
    if (!question || !IsRemembered(*question, older_[place]) || isLeftOut_(*question)) return std::nullopt;
    if (!unchanged_.Has(question->exam)) return std::nullopt;
    exams_.try_emplace(older_[place].exam, question->exam);
    return ComparedQuestion(ContentOfHit(*question));
  }

  BankUse Use(const EarlierUse& use) const {
    const OlderQuestion& found = older_[use.older];
    return {exams_.at(found.exam), found.number, identifiers_[use.older], use.relation};
  }

  BankShare Share(const SharedPart& part) const {
    return {exams_.at(part.exam), part.same, part.variants, part.share};
  }

 private:
  /// An identifier may be that of another question by now.
  static bool IsRemembered(const BankQuestion& question, const OlderQuestion& remembered) {
    return static_cast<std::size_t>(question.exam.id) == remembered.exam &&
           question.number == remembered.number;
  }

  std::span<const OlderQuestion> older_;
  const std::vector<std::int64_t>& identifiers_;
  const std::function<bool(const BankQuestion&)>& isLeftOut_;
  BankQuestions rows_;
  UnchangedExams unchanged_;
  std::map<std::size_t, BankExam> exams_;
};

}  // namespace

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

BankMemory::BankMemory(BankIndex& index, const std::function<bool()>& isCancelled) {
  try {
    state_ = StateOfIndex(index);
    Statement rows = index.Data().Prepare(
        "SELECT question.id, exam, number, sketch FROM question "
        "JOIN content ON content.question = question.id ORDER BY exam, number");
    while (rows.Step() && !(isCancelled && isCancelled())) {
      const auto sketch = QuestionSketch::FromBytes(rows.Bytes(3));
      if (!sketch || sketch->IsEmpty()) continue;
      const auto exam = static_cast<std::size_t>(rows.Integer(1));
      older_.push_back({exam, static_cast<int>(rows.Integer(2)), *sketch});
      identifiers_.push_back(rows.Integer(0));
    }
  } catch (const DatabaseError& error) {
    problem_ = index.ProblemAfter(error);
  }
}

bool BankMemory::IsUpToDate(BankIndex& index) const {
  try {
    return !problem_.IsAnything() && StateOfIndex(index) == state_;
  } catch (const DatabaseError& error) {
    index.ProblemAfter(error);
    return false;
  }
}

BankLikeness BankMemory::Like(BankIndex& index, const FileDigest& digest,
                              const std::vector<QuestionContent>& questions,
                              const std::filesystem::path& self, Progress& progress) const {
  return Compare(
      index, digest, questions, [&self](const BankQuestion& older) { return older.exam.path == self; },
      progress);
}

BankLikeness BankMemory::Elsewhere(BankIndex& index, const FileDigest& digest, const BankQuestion& question,
                                   Progress& progress) const {
  const auto isItself = [&question](const BankQuestion& older) {
    return older.number == question.number && older.exam.path == question.exam.path;
  };
  return Compare(index, digest, {ContentOfHit(question)}, isItself, progress);
}

BankLikeness BankMemory::Compare(BankIndex& index, const FileDigest& digest,
                                 const std::vector<QuestionContent>& questions, const IsLeftOut& isLeftOut,
                                 Progress& progress) const {
  BankLikeness likeness;
  likeness.problem = problem_;
  likeness.uses.resize(questions.size());
  std::vector<ComparedQuestion> open;
  open.reserve(questions.size());
  for (const QuestionContent& content : questions) open.emplace_back(content);
  try {
    OlderReader reader(index, digest, older_, identifiers_, isLeftOut);
    const auto olderAt = [&reader](std::size_t place) { return reader.Read(place); };
    const ReuseReport report = SharedWithOlder(open, older_, olderAt, progress);
    likeness.isCancelled = report.isCancelled;
    for (const EarlierUse& use : report.uses) likeness.uses[use.question].push_back(reader.Use(use));
    likeness.exams.reserve(report.exams.size());
    for (const SharedPart& part : report.exams) likeness.exams.push_back(reader.Share(part));
  } catch (const DatabaseError& error) {
    likeness.problem = index.ProblemAfter(error);
  }
  return likeness;
}

}  // namespace quorvantis

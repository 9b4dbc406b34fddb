// SPDX-License-Identifier: MIT
#include "check/QuestionRules.h"

#include "examfile/SavingLosses.h"
#include "model/LongAnswerFlags.h"
#include "text/NumberText.h"

#include <cstdint>

namespace quorvantis {

void EmptyQuestion::Check(const CheckedExam& exam, FindingList& findings) const {
  for (const CheckedQuestion& question : exam.questions) {
    if (question.isEmpty) findings.Add({question.number, ExamFieldName::QuestionText});
  }
}

void QuestionWithoutText::CheckQuestion(const CheckedQuestion& question, FindingList& findings) const {
  if (question.text.empty() && !question.hasFiles)
    findings.Add({question.number, ExamFieldName::QuestionText});
}

void SavingLosesWork::Check(const CheckedExam& exam, FindingList& findings) const {
  LongAnswerFlags flags;
  flags.SetWhereNeeded(exam.exam);  // as the window does before a save
  for (const SavingLoss& loss : FindSavingLosses(exam.exam, flags)) {
    if (loss.isWork && !loss.isContentOfFile) findings.Add(loss.place, {loss.what});
  }
}

void TextNearLimit::CheckText(const CheckedText& checked, FindingList& findings) const {
  constexpr std::size_t kPart = 50;  // the last fiftieth counts as near
  const std::size_t limit = FieldNamed(checked.place.field).limit;
  const std::size_t size = checked.text.size();
  if (size > limit || size + limit / kPart < limit) return;
  const auto digits = [](std::size_t number) { return FormatInteger(static_cast<std::int64_t>(number)); };
  findings.AddIn(checked.place, {digits(size), digits(limit)});
}

}  // namespace quorvantis

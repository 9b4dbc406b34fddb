// SPDX-License-Identifier: MIT
#include "versions/folder/VersionExam.h"

#include "model/ExamFields.h"
#include "text/Utf.h"
#include "versions/plan/OptionOrder.h"
#include "versions/plan/QuestionScores.h"

#include <cstddef>

namespace quorvantis {

std::u16string VersionTitle(std::u16string_view title, std::u16string_view name) {
  std::u16string suffix = u" (";
  suffix.append(name).append(u")");
  if (title.empty()) suffix.erase(0, 1);
  title = title.substr(0, FieldNamed(ExamFieldName::Title).limit - suffix.size());
  if (!title.empty() && IsHighSurrogate(title.back())) title.remove_suffix(1);
  return std::u16string(title) + suffix;
}

FrameSetExam VersionOf(const FrameSetExam& source, const PlannedVersion& version) {
  FrameSetExam exam = source;
  exam.title = VersionTitle(source.title, version.name);
  exam.randomMode = RandomMode::Off;
  const QuestionScores scores = ScoresOf(source, static_cast<int>(version.questions.size()));
  QuestionScores moved(scores.size());
  for (std::size_t place = 0; place < version.questions.size(); ++place) {
    const int number = version.questions[place];
    ExamQuestion& question = exam.Question(static_cast<int>(place) + 1);
    question = source.Question(number);
    MoveOptions(question, version.options[place]);
    moved[place + 1] = scores[static_cast<std::size_t>(number)];
  }
  if (moved != scores) CutRanges(moved, exam);
  return exam;
}

}  // namespace quorvantis

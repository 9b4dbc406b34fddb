// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace quorvantis {

/// What a command has done to the exam, as a history names it to the user.
enum class ChangeKind {
  Other,
  Title,
  QuestionText,
  OptionText,
  FillInAnswer,
  EssayAnswer,
  AnswerBox,
  Kind,
  RandomMode,
  Oral,
  Attach,
  RemoveFile,
  AttachToExam,
  RemoveExamFile,
  Scores,
  InsertQuestion,
  DeleteQuestion,
  MoveQuestion,
  DuplicateQuestion,
  PasteQuestion,
  TakeQuestion,
  ExchangeQuestion,
  DrawQuestion,
  Replace,
  Import,
  LineEnds,
};

struct ChangeName {
  ChangeKind kind = ChangeKind::Other;
  int question = 0;       ///< 1 to 500; 0 if it is not about one question
  std::size_t count = 1;  ///< of questions, or of places where a text was replaced
};

}  // namespace quorvantis

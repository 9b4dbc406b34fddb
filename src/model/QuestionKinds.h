// SPDX-License-Identifier: MIT
// The kinds of questions, one row per kind. Code that asks what a kind has looks here. A switch over
// QuestionKind is for behaviour that differs by kind; it has no default, so that the compiler reports a new
// kind.
#pragma once

#include "model/ExamFields.h"
#include "model/ExamQuestion.h"

#include <iterator>
#include <string_view>

namespace quorvantis {

/// Where the answer to a question is: what the window shows for it, and what a file keeps.
struct AnswerParts {
  bool options = false;  ///< the options with their ticks
  bool fillIn = false;   ///< the fill-in answer
  bool essay = false;    ///< the essay answer
  bool oral = false;     ///< not written down: the answer is spoken, and the question has the oral toggle
};

struct KindRow {
  QuestionKind kind;
  std::string_view name;  ///< in JSON
  std::string_view word;  ///< in scripts
  AnswerParts answer;

  /// Whether a question of this kind keeps a field when it is saved and read again.
  constexpr bool Keeps(ExamFieldName field) const {
    switch (field) {
      case ExamFieldName::Options:
      case ExamFieldName::AnswerMask:
        return answer.options;
      case ExamFieldName::FillInAnswer:
        return answer.fillIn;
      case ExamFieldName::EssayAnswer:
        return answer.essay;
      default:
        return true;
    }
  }
};

/// In the order of their numbers.
inline constexpr KindRow kQuestionKinds[] = {
    {QuestionKind::Choice, "Choice", "choice", {.options = true}},
    {QuestionKind::FillIn, "FillIn", "fillin", {.fillIn = true}},
    {QuestionKind::Essay, "Essay", "essay", {.essay = true}},
    {QuestionKind::Oral, "Oral", "oral", {.oral = true}},
};

/// Whether it is a known kind; files can hold any number.
constexpr bool IsKnown(QuestionKind kind) {
  switch (kind) {
    case QuestionKind::Choice:
    case QuestionKind::FillIn:
    case QuestionKind::Essay:
    case QuestionKind::Oral:
      return true;
  }
  return false;
}

constexpr bool HasARowForEveryKind() {
  for (std::size_t i = 0; i < std::size(kQuestionKinds); ++i) {
    if (kQuestionKinds[i].kind != static_cast<QuestionKind>(i) || !IsKnown(kQuestionKinds[i].kind))
      return false;
  }
  return !IsKnown(static_cast<QuestionKind>(std::size(kQuestionKinds)));
}
static_assert(HasARowForEveryKind(), "a row for every kind, in the order of their numbers");

/// The row of a kind; null for an unknown number.
constexpr const KindRow* FindKind(QuestionKind kind) {
  return IsKnown(kind) ? &kQuestionKinds[static_cast<std::size_t>(kind)] : nullptr;
}

/// The answer of a kind; an unknown number has none.
constexpr AnswerParts AnswerOf(QuestionKind kind) {
  const KindRow* row = FindKind(kind);
  return row != nullptr ? row->answer : AnswerParts();
}

}  // namespace quorvantis

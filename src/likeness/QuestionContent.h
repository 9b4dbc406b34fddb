// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamQuestion.h"

#include <string>
#include <vector>

namespace quorvantis {

/// What a question asks and what is right, apart from the exam that it stands in: by this two questions are
/// compared, and to this tags belong. Texts are as the author wrote them, of any length and with any units.
struct QuestionContent {
  QuestionKind kind = QuestionKind::Choice;
  std::u16string text;
  std::vector<std::u16string> options;  ///< those with a text, in their order; none if the kind has none
  std::vector<std::u16string> answers;  ///< the texts of the right options, the answers, or the model answer
  std::vector<std::u16string> files;    ///< what tells each attached file from others; see ContentOf
};

/// The content of a question of an exam: of the answers only those that belong to its kind. `files` says by
/// what its attached files are known, for all questions alike: wherever contents of several exams meet, by
/// the SHA-256 of their bytes in lower-case hexadecimal, since pictures of different exams often have the
/// same name.
QuestionContent ContentOf(const ExamQuestion& question, std::vector<std::u16string> files);

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
// Showing a question converts the answers that another program has written to the form that this editor would
// store. Code that compares exams uses these functions, so that merely looking at a question is no change.
#pragma once

#include "model/ExamQuestion.h"

namespace quorvantis {

/// The fields of a question that showing it may change, as they are after it was shown and left; all others
/// are empty.
ExamQuestion AnswersAsShown(const ExamQuestion& question);

/// Whether showing the question changes nothing.
bool HasAnswers(const ExamQuestion& question, const ExamQuestion& answers);

ExamQuestion WithAnswers(ExamQuestion question, const ExamQuestion& answers);

}  // namespace quorvantis

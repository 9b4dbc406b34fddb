// SPDX-License-Identifier: MIT
// The pages that list all questions of an exam, as text. The exam has been counted.
#pragma once

#include "model/document/FrameSetExam.h"

#include <string>

namespace quorvantis {

/// The editor's preview: questions with their keys.
std::u16string ComposeQuestionPage(const FrameSetExam& exam);

/// The result of a finished exam: questions with keys, the student's answers and marks, and the score.
std::u16string ComposeResultPage(const FrameSetExam& exam);

/// The exam as a paper; the document's renderer is in print layout.
std::u16string ComposePrintPage(const FrameSetExam& exam);

}  // namespace quorvantis

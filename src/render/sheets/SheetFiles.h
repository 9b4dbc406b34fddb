// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/FrameSetExam.h"

#include <string>

namespace quorvantis {

/// The files attached to the exam as a whole, as a sheet shows them: pictures and documents whole, others by
/// their names. Their addresses are relative to a page in the application folder.
std::u16string ExamFiles(const FrameSetExam& exam);

/// The same for a question.
std::u16string QuestionFiles(const FrameSetExam& exam, const ExamQuestion& question);

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/FrameSetExam.h"
#include "render/sheets/SheetRequest.h"

#include <string>

namespace quorvantis {

/// The exam as a paper for pupils: questions with their options and files, room for answers, and scores.
/// Options have the letters of their fields, so they always agree with the key, even where one is empty.
std::u16string ComposePaper(const FrameSetExam& exam, const SheetRequest& request);

/// One question of a counted exam as the paper has it, with its number and score, on a page for a pane of a
/// window. An empty page if the exam has no such question.
std::u16string ComposeQuestion(const FrameSetExam& exam, int number, const SheetRequest& request);

/// The same for teachers: right options are ticked, and answers stand where pupils write theirs.
std::u16string ComposeSolutions(const FrameSetExam& exam, const SheetRequest& request);

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/FrameSetExam.h"
#include "render/RenderFlags.h"

#include <string>

namespace quorvantis {

/// The row of the question in slot `index` + 1: a table with its number and its content. Attached files are
/// shown whatever the flags say, except for two settings that other hosts use in pages of their own; so the
/// result page shows them, too. `studentNumber` is for oral questions, see OralPart; the pages here pass 0.
std::u16string QuestionRow(const FrameSetExam& exam, int index, int studentNumber, const RenderFlags& flags);

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/FrameSetExam.h"
#include "render/sheets/SheetRequest.h"

#include <string>

namespace quorvantis {

/// The page that pupils answer on: boxes A to E for choice questions in blocks of ten, a hundred of them on
/// one page; lines for fill-in questions; room for essays. Questions keep their numbers.
std::u16string ComposeAnswerSheet(const FrameSetExam& exam, const SheetRequest& request);

}  // namespace quorvantis

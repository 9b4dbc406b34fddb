// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/FrameSetExam.h"
#include "render/sheets/SheetRequest.h"

#include <string>

namespace quorvantis {

/// The keys of all questions with scores and their sum. Letters stand in blocks of ten.
std::u16string ComposeKey(const FrameSetExam& exam, const SheetRequest& request);

}  // namespace quorvantis

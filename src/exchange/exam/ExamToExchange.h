// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/form/ExchangeNotes.h"
#include "exchange/form/ExchangedExam.h"

namespace quorvantis {

class FrameSetExam;

/// The exam as plain data, its texts in normal form (exchange/markup/Markup.h). Its files stay where they
/// are. Tells what no format holds.
ExchangedExam ExamToExchange(const FrameSetExam& exam, ExchangeNotes& notes);

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/ExchangeNotes.h"
#include "exchange/ExchangedExam.h"

namespace quorvantis {

class FrameSetExam;

/// The exam as plain data, its texts in normal form (exchange/Markup.h). Its files stay where they are.
/// Tells what no format holds.
ExchangedExam ExamToExchange(const FrameSetExam& exam, ExchangeNotes& notes);

/// Tells what a text has lost when it was read.
struct MarkupLosses;
void TellMarkupLosses(const MarkupLosses& losses, ExchangeNotes& notes);

}  // namespace quorvantis

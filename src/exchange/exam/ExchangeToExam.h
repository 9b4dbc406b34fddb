// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/form/ExchangeNotes.h"
#include "exchange/form/ExchangedExam.h"

namespace quorvantis {

class FrameSetExam;

/// Stores questions in the slots of `exam` from `firstSlot` (1 to 500) on, with the paths of their files;
/// the title and the scores only if they go to the first slot. Every text is brought into normal form, so
/// nothing that a reader let through can run on a page. Tells what an exam cannot hold. Returns the slot
/// after the last one used.
int StoreExchanged(const ExchangedExam& exchanged, FrameSetExam& exam, int firstSlot, ExchangeNotes& notes);

}  // namespace quorvantis

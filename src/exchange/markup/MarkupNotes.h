// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/form/ExchangeNotes.h"

namespace quorvantis {

struct MarkupLosses;

/// Tells what a text has lost when it was read.
void TellMarkupLosses(const MarkupLosses& losses, ExchangeNotes& notes);

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/form/ExchangeNotes.h"

#include <string>

namespace quorvantis {

struct MarkupLosses;
struct ReadMarkup;

/// Tells what a text has lost when it was read.
void TellMarkupLosses(const MarkupLosses& losses, ExchangeNotes& notes);

/// A text of a file that holds no others: its losses are told, and its pictures as not fetched.
std::u16string TextWithoutFiles(const ReadMarkup& read, ExchangeNotes& notes);

}  // namespace quorvantis

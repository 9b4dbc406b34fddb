// SPDX-License-Identifier: MIT
#include "exchange/markup/MarkupNotes.h"

#include "exchange/markup/Markup.h"
#include "platform/texts/ExchangeTexts.h"

namespace quorvantis {

void TellMarkupLosses(const MarkupLosses& losses, ExchangeNotes& notes) {
  if (losses.formatting) notes.Tell(text_id::kExchangeFormatting);
  if (losses.table) notes.Tell(text_id::kExchangeTable);
  if (losses.executable) notes.Tell(text_id::kExchangeExecutable);
  if (losses.formula) notes.Tell(text_id::kExchangeFormula);
  if (losses.drawing) notes.Tell(text_id::kExchangeDrawing);
}

}  // namespace quorvantis

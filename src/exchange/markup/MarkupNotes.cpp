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

std::u16string TextWithoutFiles(const ReadMarkup& read, ExchangeNotes& notes) {
  TellMarkupLosses(read.losses, notes);
  for (const MarkupReference& reference : read.references)
    notes.Tell(text_id::kExchangeNotFetched, {Excerpt(reference.address)});
  return read.text;
}

}  // namespace quorvantis

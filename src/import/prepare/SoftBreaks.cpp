// SPDX-License-Identifier: MIT
#include "import/prepare/Steps.h"

#include <algorithm>

namespace quorvantis {

void step::SoftBreaks(PaperText& text, const PreparationContext& /*context*/) {
  std::ranges::replace(text.characters, u'\v', u'\r');
}

}  // namespace quorvantis

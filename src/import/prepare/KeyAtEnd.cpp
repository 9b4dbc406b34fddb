// SPDX-License-Identifier: MIT
#include "import/prepare/Steps.h"

namespace quorvantis {

void step::KeyAtEnd(PaperText& /*text*/, const PreparationContext& /*context*/) {}

}  // namespace quorvantis

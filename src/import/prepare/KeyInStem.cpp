// SPDX-License-Identifier: MIT
#include "import/prepare/Steps.h"

namespace quorvantis {

void step::KeyInStem(PaperText& /*text*/, const PreparationContext& /*context*/) {}

}  // namespace quorvantis

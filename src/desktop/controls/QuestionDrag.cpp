// SPDX-License-Identifier: MIT
#include "desktop/controls/QuestionDrag.h"

#include <utility>

namespace quorvantis {

/// Without any data, some window systems do not begin a drag.
QuestionDrag::QuestionDrag(Insert insert) : insert_(std::move(insert)) {
  setData("application/x-quorvantis-question", "1");
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "desktop/bank/BankPageView.h"

namespace quorvantis {

BankPageView::~BankPageView() = default;

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/bank/desk/BankHitText.h"

#include <QTextEdit>

namespace quorvantis {

/// Shows a text with its marks in the direction in which it is written.
void ShowHitText(QTextEdit& edit, const BankHitText& shown);

}  // namespace quorvantis

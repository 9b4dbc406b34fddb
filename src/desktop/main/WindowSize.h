// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace quorvantis {

/// Gives the main window the size limits of the screen that it is on.
void LimitSize(QWidget& window);

/// Gives it the size that it starts with, too.
void SetFirstSize(QWidget& window);

}  // namespace quorvantis

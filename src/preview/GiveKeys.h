// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QWidget>

namespace quorvantis {

/// Makes Qt look for shortcuts in `window` from the very next key on. The window system moves the focus
/// later.
inline void TakeKeysFor(QWidget& window) {
  // Later versions of Qt deprecate it without a replacement.
  QT_IGNORE_DEPRECATIONS(QApplication::setActiveWindow(&window);)
}

/// Gives `window` the keyboard: the very next key goes there.
inline void GiveKeysTo(QWidget& window) {
  window.activateWindow();
  TakeKeysFor(window);
}

}  // namespace quorvantis

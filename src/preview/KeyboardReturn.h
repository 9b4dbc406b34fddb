// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace quorvantis {

/// Sees to it that a window has the keyboard again after a preview in front of it has gone. A window manager
/// that was just giving it to the preview may leave it to no window, and then no key arrives anywhere.
class KeyboardReturn : public QObject {
 public:
  KeyboardReturn();

  /// For a short while, asks for the keyboard for `window` whenever no window of the program has it. Ends
  /// once `window` has kept it, and with the first dialog.
  void ReturnTo(QWidget& window);

  /// Another window is to have the keyboard.
  void Stop() { looks_.stop(); }

 private:
  void Look();

  QPointer<QWidget> window_;
  QTimer looks_;
  QElapsedTimer sinceGone_;
  int kept_ = 0;  ///< looks in a row at which `window_` had the keyboard
};

}  // namespace quorvantis

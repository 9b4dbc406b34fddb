// SPDX-License-Identifier: MIT
#include "preview/KeyboardReturn.h"

#include "preview/GiveKeys.h"

#include <QWindow>

namespace quorvantis {
namespace {

constexpr int kBetweenLooks = 60;        // milliseconds
constexpr int kLooksUntilKept = 10;      // a slow window manager may still be about to take the keyboard away
constexpr qint64 kLongestReturn = 4000;  // milliseconds

}  // namespace

KeyboardReturn::KeyboardReturn() {
  connect(&looks_, &QTimer::timeout, this, &KeyboardReturn::Look);
}

void KeyboardReturn::ReturnTo(QWidget& window) {
  window_ = &window;
  kept_ = 0;
  sinceGone_.start();
  looks_.start(kBetweenLooks);
}

void KeyboardReturn::Look() {
  const QWidget* const dialog = QApplication::activeModalWidget();
  const bool hasDialog = dialog != nullptr && dialog != window_;
  if (!window_ || !window_->isVisible() || hasDialog || sinceGone_.elapsed() > kLongestReturn) return Stop();
  const QWindow* const focus = QGuiApplication::focusWindow();
  if (focus == nullptr || !focus->isVisible()) {  // Qt may still name a window that has gone
    const bool wasKept = kept_ > kLooksUntilKept / 2;
    return wasKept ? Stop() : GiveKeysTo(*window_);  // the user has gone to another program, or nobody has it
  }
  kept_ = focus == window_->windowHandle() ? kept_ + 1 : 0;
  if (kept_ == kLooksUntilKept) Stop();
}

}  // namespace quorvantis

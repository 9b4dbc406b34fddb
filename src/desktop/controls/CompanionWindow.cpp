// SPDX-License-Identifier: MIT
#include "desktop/controls/CompanionWindow.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace quorvantis {

QPoint PlaceBeside(const QWidget& main, QSize size) {
  const QRect screen = main.screen()->availableGeometry();
  const QRect frame = main.frameGeometry();
  const int titleBar = frame.height() - main.height();
  if (screen.right() - frame.right() >= size.width()) return {frame.right() + 1, frame.top()};
  if (frame.left() - screen.left() >= size.width()) return {frame.left() - size.width(), frame.top()};
  return {screen.right() - size.width(), std::max(screen.top(), screen.bottom() - size.height() - titleBar)};
}

bool ReturnToPlace(QWidget& window, const QRect& kept) {
  const QScreen* screen = QGuiApplication::screenAt(kept.center());
  if (kept.width() == 0 || screen == nullptr) return false;
  window.resize(kept.size().boundedTo(screen->availableSize()));
  window.move(kept.topLeft());
  return true;
}

void FitOnScreen(QWidget& window, const QWidget& main) {
  const QScreen* there = QGuiApplication::screenAt(window.geometry().center());
  const QRect screen = (there != nullptr ? there : main.screen())->availableGeometry();
  const QSize frame = main.frameGeometry().size() - main.size();
  window.resize(window.size().boundedTo(screen.size() - frame));
  const QPoint last =
      screen.bottomRight() - QPoint(window.width() + frame.width(), window.height() + frame.height());
  window.move(std::max(screen.left(), std::min(window.x(), last.x() + 1)),
              std::max(screen.top(), std::min(window.y(), last.y() + 1)));
}

void PlaceCompanion(QWidget& window, const QWidget& main, const QRect& kept) {
  window.move(PlaceBeside(main, window.size()));
  ReturnToPlace(window, kept);
  FitOnScreen(window, main);
}

bool DecideShortcut(QEvent& event) {
  if (event.type() != QEvent::ShortcutOverride) return false;
  const auto& key = static_cast<QKeyEvent&>(event);
  const bool isPageKey = key.key() == Qt::Key_PageUp || key.key() == Qt::Key_PageDown;
  if (isPageKey || key.modifiers().testFlag(Qt::AltModifier)) event.accept();
  return true;
}

}  // namespace quorvantis

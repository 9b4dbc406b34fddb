// SPDX-License-Identifier: MIT
#include "preview/PreviewKeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWindow>

namespace quorvantis {
namespace {

constexpr qint64 kImpatience = 1000;  // milliseconds

bool IsKey(const QEvent& event) {
  return event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease ||
         event.type() == QEvent::ShortcutOverride;
}

bool IsEscapePress(const QEvent& event) {
  return event.type() != QEvent::KeyRelease && static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
}

/// Whether a dialog blocks the input of `window`: one of its own does, and an application-modal one, but not
/// one of another window.
bool HasDialogInFront(const QWidget& window) {
  const QWidget* const dialog = QApplication::activeModalWidget();
  if (dialog == nullptr) return false;
  const QWidget* const parent = dialog->parentWidget();
  const bool ofAnotherWindow = parent != nullptr && parent->window() != &window;
  return dialog->windowModality() == Qt::ApplicationModal || !ofAnotherWindow;
}

}  // namespace

PreviewKeys::PreviewKeys() {
  qApp->installEventFilter(this);
}

void PreviewKeys::Watch(PreviewWindow& window) {
  window_ = &window;
  connect(&window, &PreviewWindow::Closed, this, &PreviewKeys::NoteEscape);
}

bool PreviewKeys::eventFilter(QObject* watched, QEvent* event) {
  if (!IsKey(*event)) return false;
  if (IsEscapePress(*event) && TakesEscape()) return true;
  QWidget* const window = WindowFor(*watched);
  if (window == nullptr) return false;
  QCoreApplication::sendEvent(window->windowHandle(), event);
  return true;
}

/// A press is reported more than once, and repeatedly while the key is held.
bool PreviewKeys::TakesEscape() {
  if (QApplication::activePopupWidget() != nullptr) return false;
  if (IsMeantForPreview()) {
    window_->Leave();
  } else if (!IsImpatient()) {
    return false;
  }
  NoteEscape();
  return true;
}

bool PreviewKeys::IsMeantForPreview() const {
  if (!window_) return false;
  if (window_->IsOnScreen()) return !HasDialogInFront(*window_);
  return window_->IsAboutToPrint() && QApplication::activeModalWidget() == nullptr;
}

bool PreviewKeys::IsImpatient() const {
  return sinceEscape_.isValid() && sinceEscape_.elapsed() < kImpatience &&
         QApplication::activeModalWidget() == dialogThen_;
}

void PreviewKeys::NoteEscape() {
  sinceEscape_.start();
  dialogThen_ = QApplication::activeModalWidget();
}

/// The window that a key should have gone to if the window system has not caught up yet; null if it has.
QWidget* PreviewKeys::WindowFor(const QObject& watched) const {
  if (!window_ || !window_->WindowBelow()) return nullptr;
  QWidget* const below = window_->WindowBelow();
  if (window_->IsOnScreen()) {
    return &watched == below->windowHandle() && !HasDialogInFront(*window_) ? window_.data() : nullptr;
  }
  return &watched == window_->windowHandle() && below->isVisible() ? below : nullptr;
}

}  // namespace quorvantis

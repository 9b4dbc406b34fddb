// SPDX-License-Identifier: MIT
#include "preview/PreviewKeys.h"

#include "preview/GiveKeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWindow>

namespace quorvantis {
namespace {

constexpr qint64 kImpatience = 1000;    // milliseconds
constexpr qint64 kPauseInTyping = 700;  // milliseconds; longer than between two words

bool IsKey(const QEvent& event) {
  return event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease ||
         event.type() == QEvent::ShortcutOverride;
}

bool IsEscapePress(const QEvent& event) {
  return event.type() != QEvent::KeyRelease && static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
}

/// Whether a press changes or moves something where the keyboard is. Commands, which have Ctrl or Alt, do
/// not.
bool IsTyping(const QKeyEvent& press) {
  const bool isCommand =
      (press.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
  const bool isModifier = press.key() >= Qt::Key_Shift && press.key() <= Qt::Key_ScrollLock;
  const bool isFunction = press.key() >= Qt::Key_F1 && press.key() <= Qt::Key_F35;
  return !isCommand && !isModifier && !isFunction && press.key() != Qt::Key_Escape;
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
  connect(&window, &PreviewWindow::Appeared, &keyboardReturn_, &KeyboardReturn::Stop);
  connect(&window, &PreviewWindow::Closed, this, [this, &window] {
    left_ = &window;
    NoteEscape();
    Uncover(window);
  });
  connect(&window, &PreviewWindow::PrinterRefused, this, &PreviewKeys::NoteEscape);
}

void PreviewKeys::Uncover(const PreviewWindow& window) {
  const bool covers = window.isVisible() && !window.testAttribute(Qt::WA_DontShowOnScreen);
  if (covers && window.WindowBelow() != nullptr) keyboardReturn_.ReturnTo(*window.WindowBelow());
}

bool PreviewKeys::IsUserBusy() const {
  if (window_ && window_->IsOnScreen()) return false;
  const bool types = sinceTyping_.isValid() && sinceTyping_.elapsed() < kPauseInTyping;
  return types || QApplication::activePopupWidget() != nullptr ||
         QApplication::activeModalWidget() != nullptr;
}

void PreviewKeys::NoteTyping(const QEvent& event) {
  const bool composes = event.type() == QEvent::InputMethod;
  const bool presses = event.type() == QEvent::KeyPress;
  if (composes || (presses && IsTyping(static_cast<const QKeyEvent&>(event)))) sinceTyping_.start();
}

bool PreviewKeys::eventFilter(QObject* watched, QEvent* event) {
  NoteTyping(*event);
  if (!IsKey(*event)) return false;
  if (IsEscapePress(*event) && TakesEscape()) return true;
  QWidget* const window = WindowFor(*watched);
  if (window == nullptr) return false;
  if (!window->isActiveWindow()) TakeKeysFor(*window);
  QCoreApplication::sendEvent(window->windowHandle(), event);
  return true;
}

/// A press is reported more than once, and repeatedly while the key is held.
bool PreviewKeys::TakesEscape() {
  if (QApplication::activePopupWidget() != nullptr) return false;
  if (IsMeantForPreview()) {
    window_->Leave();
  } else if (window_ && window_->RejectNewDialog()) {
    return true;  // which is noted when the dialog returns
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
  const bool isShown = window_ && window_->IsOnScreen();
  if (isShown && !HasDialogInFront(*window_)) {
    const QWidget* const below = window_->WindowBelow();
    const bool isBehind = (below != nullptr && &watched == below->windowHandle()) || IsOfLeft(watched);
    return isBehind ? window_.data() : nullptr;
  }
  if (!IsOfLeft(watched)) return nullptr;
  QWidget* const dialog = QApplication::activeModalWidget();
  if (dialog != nullptr) return dialog;
  QWidget* const below = left_->WindowBelow();
  return below != nullptr && below->isVisible() ? below : nullptr;
}

bool PreviewKeys::IsOfLeft(const QObject& watched) const {
  return left_ && &watched == left_->windowHandle();
}

}  // namespace quorvantis

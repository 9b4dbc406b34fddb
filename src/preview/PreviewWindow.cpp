// SPDX-License-Identifier: MIT
#include "preview/PreviewWindow.h"

#include "platform/convert/Later.h"
#include "preview/PageAddress.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

/// Nobody presses a key twice within this time. A key that is held down reports itself so often, and not
/// always as a repetition.
constexpr qint64 kShortestPause = 100;  // milliseconds

bool IsEscape(const QEvent& event) {
  const bool isKey = event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease ||
                     event.type() == QEvent::ShortcutOverride;
  return isKey && static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
}

/// Whether a dialog takes the input of `window`: one of its own does, and one for the whole program, but not
/// one that only another window waits for.
bool HasDialogInFront(const QWidget& window) {
  const QWidget* const dialog = QApplication::activeModalWidget();
  if (dialog == nullptr) return false;
  const QWidget* const parent = dialog->parentWidget();
  const bool ofAnotherWindow = parent != nullptr && parent->window() != &window;
  return dialog->windowModality() == Qt::ApplicationModal || !ofAnotherWindow;
}

/// Whether all windows are gone that keep the program running. A preview that stayed open would keep a
/// program running that nobody sees.
bool IsProgramEnding() {
  const QWidgetList windows = QApplication::topLevelWidgets();
  return std::none_of(windows.begin(), windows.end(), [](const QWidget* window) {
    return window->isVisible() && window->testAttribute(Qt::WA_QuitOnClose);
  });
}

QRect Screen() {
  const QScreen* const screen = QGuiApplication::primaryScreen();
  return screen == nullptr ? QRect(0, 0, 1024, 768) : screen->geometry();
}

}  // namespace

PreviewWindow::PreviewWindow(QWebEngineProfile& profile, ExamGateway& gateway, PreviewOwner& owner,
                             const std::filesystem::path& applicationFolder, PagePrinter::AskForPrinter ask)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      gateway_(gateway),
      page_(&profile, nullptr),
      printer_(
          view_, page_, gateway,
          ask ? std::move(ask) : [this](QPrinter& printer) { return AskUserForPrinter(printer); }),
      session_(*this, *this, owner, applicationFolder) {
  setAttribute(Qt::WA_QuitOnClose, false);
  setGeometry(Screen());
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(&view_);
  view_.setContextMenuPolicy(Qt::NoContextMenu);
  connect(&page_, &ExamPage::StatusTextChanged, this,
          [this](const QString& text) { session_.StatusTextChanged(text.toStdU16String()); });
  auto* const print = new QShortcut(QKeySequence::Print, this);
  connect(print, &QShortcut::activated, this, [this] { session_.PrintByKeystroke(); });
  connect(&printer_, &PagePrinter::Printed, this, [this] {
    if (!IsOnScreen()) gateway_.StopConversions();
  });
  qApp->installEventFilter(this);
}

PreviewWindow::~PreviewWindow() {
  gateway_.StopConversions();
}

/// Seen before the browser sees it, which would give the key to the page. While the preview covers the
/// screen, the windows below it must not get the key either: it would end them. Nor must they afterwards, as
/// long as it is held down and repeats.
bool PreviewWindow::eventFilter(QObject* watched, QEvent* event) {
  if (!IsEscape(*event)) return QWidget::eventFilter(watched, event);
  const bool held = sinceEscape_.isValid() && sinceEscape_.elapsed() < kShortestPause;
  sinceEscape_.start();
  if (event->type() == QEvent::KeyRelease) return QWidget::eventFilter(watched, event);
  const bool repeats = held || static_cast<const QKeyEvent*>(event)->isAutoRepeat();
  if (!repeats) escapeIsOurs_ = IsOnScreen() && !HasDialogInFront(*this);
  if (!escapeIsOurs_) return QWidget::eventFilter(watched, event);
  session_.Leave();
  return true;
}

void PreviewWindow::closeEvent(QCloseEvent* event) {
  if (IsProgramEnding()) return LeavePage();
  event->ignore();
  session_.Leave();
}

void PreviewWindow::Navigate(const std::filesystem::path& page) {
  if (view_.page() != &page_) view_.setPage(&page_);
  page.empty() ? LeavePage() : gateway_.SetPage(page);
  page_.Go(page.empty() ? QUrl(kBlankPage) : AddressOf(page));
}

/// An exam may finish while a dialog asks for the printer of its page.
void PreviewWindow::LeavePage() {
  gateway_.StopConversions();
  if (!printDialog_) return;
  for (QDialog* const question : printDialog_->findChildren<QDialog*>()) question->reject();
  printDialog_->reject();
}

/// A place away from the corner means: out of sight. Screens are larger than they were when that place was
/// chosen, and some systems let no window choose one, so the window is laid out without being shown.
void PreviewWindow::Place(int x, int y) {
  setAttribute(Qt::WA_DontShowOnScreen, x != 0 || y != 0);
  move(Screen().topLeft() + QPoint(x, y));
}

void PreviewWindow::Show() {
  show();
  if (!IsOnScreen()) return;
  raise();
  activateWindow();
  view_.setFocus();
}

/// A preview that has been left is over, whatever scripts of its page still run; a print is only out of
/// sight.
void PreviewWindow::Hide() {
  hide();
  if (session_.Closing()) page_.setLifecycleState(QWebEnginePage::LifecycleState::Discarded);
}

void PreviewWindow::After(std::chrono::milliseconds delay, std::function<void()> action) {
  Later(*this, delay, std::move(action));
}

bool PreviewWindow::AskUserForPrinter(QPrinter& printer) {
  printDialog_ = new QPrintDialog(&printer, IsOnScreen() ? this : QApplication::activeWindow());
  const QPointer<QPrintDialog> dialog = printDialog_;  // gone if its parent goes while it is open
  const bool print = dialog->exec() == QDialog::Accepted;
  delete dialog;
  return print;
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "preview/PreviewWindow.h"

#include "model/WorkFolderNames.h"
#include "platform/convert/Later.h"
#include "preview/GiveKeys.h"
#include "preview/PageAddress.h"
#include "text/PathText.h"

#include <QApplication>
#include <QCloseEvent>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds kUntilPrinting{500};
constexpr milliseconds kUntilPageEnds{1000};
constexpr milliseconds kLongestHandOver{600};

/// Compared only with the beginning of a status text, so a page may say more ("ExamFinished").
constexpr std::u16string_view kFinishSignal = u"ExamFinish";

/// Whether all windows that keep the program running are gone. A preview left open would keep an invisible
/// program running.
bool IsProgramEnding() {
  const QWidgetList windows = QApplication::topLevelWidgets();
  return std::none_of(windows.begin(), windows.end(), [](const QWidget* window) {
    return window->isVisible() && window->testAttribute(Qt::WA_QuitOnClose);
  });
}

/// Whether a window manager moves the keyboard between windows, some time after it has been asked to.
bool IsKeyboardSlow() {
  return QGuiApplication::platformName() == QLatin1String("xcb");
}

QRect Screen() {
  const QScreen* const screen = QGuiApplication::primaryScreen();
  return screen == nullptr ? QRect(0, 0, 1024, 768) : screen->geometry();
}

}  // namespace

PreviewWindow::PreviewWindow(QWebEngineProfile& profile, ExamGateway& gateway,
                             const std::filesystem::path& applicationFolder, PagePrinter::AskForPrinter ask)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      gateway_(gateway),
      printKey_(new QShortcut(QKeySequence::Print, this)),
      page_(&profile, nullptr),
      printer_(
          view_, page_, gateway,
          ask ? std::move(ask) : [this](QPrinter& printer) { return AskUserForPrinter(printer); }) {
  setAttribute(Qt::WA_QuitOnClose, false);
  setGeometry(Screen());
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(&view_);
  view_.setContextMenuPolicy(Qt::NoContextMenu);
  view_.setPage(&page_);
  printTimer_.setSingleShot(true);
  connect(&printTimer_, &QTimer::timeout, this, &PreviewWindow::PrintByKeystroke);
  connect(&page_, &ExamPage::StatusTextChanged, this,
          [this](const QString& text) { StatusTextChange(text.toStdU16String()); });
  connect(printKey_, &QShortcut::activated, this, &PreviewWindow::PrintByKeystroke);
  connect(qApp, &QGuiApplication::focusWindowChanged, this, &PreviewWindow::NoteFocus);
  connect(&printer_, &PagePrinter::Progressed, this, &PreviewWindow::PrintProgressed);
  connect(&printer_, &PagePrinter::Printed, this, [this] {
    if (!IsOnScreen()) gateway_.PageGone();
  });
  Navigate(applicationFolder / TextToPath(kStudentFolders) / "SEE.htm");
}

/// The dialog refers to the printer.
PreviewWindow::~PreviewWindow() {
  delete printDialog_;
}

void PreviewWindow::Navigate(const std::filesystem::path& page) {
  page.empty() ? gateway_.PageGone() : gateway_.SetPage(page);
  page_.Go(page.empty() ? QUrl(kBlankPage) : AddressOf(page));
}

/// Screens are larger than when the hidden position was chosen, and some systems do not let windows choose a
/// position, so the window is laid out without being shown.
void PreviewWindow::Place(int x, int y) {
  setAttribute(Qt::WA_DontShowOnScreen, x != 0 || y != 0);
  move(Screen().topLeft() + QPoint(x, y));
}

void PreviewWindow::Show() {
  const bool appears = !isVisible();
  show();
  if (!IsOnScreen()) return;
  QWidget* const active = QApplication::activeWindow();
  if (appears && active != nullptr && active != this && active->isVisible()) below_ = active;
  if (appears) emit Appeared();
  raise();
  GiveKeysTo(*this);
  view_.setFocus();
}

void PreviewWindow::StartPrintTimer() {
  printTimer_.start(kUntilPrinting);
  emit PrintProgressed();
}

void PreviewWindow::PrintByKeystroke() {
  if (closing_) return;
  Show();
  printer_.Print();
}

void PreviewWindow::StatusTextChange(std::u16string_view text) {
  if (closing_) return;
  if (!text.starts_with(kFinishSignal)) {
    emit PageWished(QString::fromStdU16String(std::u16string(text)));
    return;
  }
  if (owner_ != nullptr) owner_->PrefixAttachmentPaths(0);
  Leave();
}

void PreviewWindow::Leave() {
  if (closing_) return;
  const bool wasOnScreen = IsOnScreen();
  closing_ = true;
  printTimer_.stop();
  printKey_->setEnabled(false);
  printer_.GiveUp();
  RejectPrintDialog();
  const bool isUserHere = isActiveWindow() || !hadKeyboard_ || QGuiApplication::focusWindow() != nullptr;
  returnsKeyboard_ = wasOnScreen && isUserHere && below_ && below_->isVisible();
  if (returnsKeyboard_) TakeKeysFor(*below_);
  page_.setAudioMuted(true);
  if (returnsKeyboard_ && IsKeyboardSlow()) {
    HandOverKeyboard();
  } else {
    Vanish();
  }
  emit Closed();
  emit PrintProgressed();
  if (printer_.IsPrinting()) {  // the browser crashes if the page goes meanwhile
    connect(&printer_, &PagePrinter::Printed, this, &PreviewWindow::EndPage);
  } else {
    EndPage();
  }
}

/// The keyboard moves while both windows are there. If this one went first, keys pressed meanwhile would be
/// lost; and if a window manager was just giving it the keyboard, no window would have it in the end.
void PreviewWindow::HandOverKeyboard() {
  if (hadKeyboard_) GiveKeysTo(*below_);
  Later(*this, kLongestHandOver, [this] { Vanish(); });
}

void PreviewWindow::NoteFocus(const QWindow* focus) {
  const bool isHere = focus != nullptr && focus == windowHandle();
  hadKeyboard_ = hadKeyboard_ || isHere;
  if (!IsHandingOver() || focus == nullptr) return;
  Later(*this, {}, [this, isHere] { isHere&& IsHandingOver() && below_ ? GiveKeysTo(*below_) : Vanish(); });
}

void PreviewWindow::Vanish() {
  if (!isVisible()) return;
  const QWidget* const dialog = QApplication::activeModalWidget();  // opened meanwhile
  if (returnsKeyboard_ && below_ && below_->isVisible() && (dialog == nullptr || dialog == below_))
    GiveKeysTo(*below_);  // before the window system looks for another one
  Hide();
  emit Vanished();
}

/// The page gets a second to finish what it is doing, a recording for example. Then it goes, whatever scripts
/// still run.
void PreviewWindow::EndPage() {
  Navigate({});
  Later(*this, kUntilPageEnds,
        [this] { page_.setLifecycleState(QWebEnginePage::LifecycleState::Discarded); });
}

bool PreviewWindow::IsAboutToPrint() const {
  return !IsOnScreen() && !closing_ && (printTimer_.isActive() || printer_.IsPreparing());
}

void PreviewWindow::closeEvent(QCloseEvent* event) {
  if (!IsProgramEnding()) event->ignore();
  Leave();
}

/// An exam may finish while a dialog asks for the printer of its page.
void PreviewWindow::RejectPrintDialog() {
  if (!printDialog_) return;
  for (QDialog* const question : printDialog_->findChildren<QDialog*>()) question->reject();
  printDialog_->reject();
}

bool PreviewWindow::RejectNewDialog() {
  const QWindow* const focus = QGuiApplication::focusWindow();
  const bool isNew =
      focus != nullptr && (focus == windowHandle() || (below_ && focus == below_->windowHandle()));
  if (!printDialog_ || !isNew) return false;
  RejectPrintDialog();
  return true;
}

bool PreviewWindow::AskUserForPrinter(QPrinter& printer) {
  QWidget* const active = QApplication::activeWindow();
  printDialog_ = new QPrintDialog(&printer, IsOnScreen() ? this : active != nullptr ? active : below_.data());
  const QPointer<QPrintDialog> dialog = printDialog_;  // null if its parent goes while it is open
  const bool print = dialog->exec() == QDialog::Accepted;
  if (!dialog) return false;
  delete dialog;
  if (!print) emit PrinterRefused();
  return print;
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "preview/PreviewWindows.h"

#include "preview/PageScripts.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

#include <chrono>
#include <utility>

namespace quorvantis {
namespace {

constexpr std::chrono::seconds kLongestPrint{20};
constexpr int kTurn = 50;  // milliseconds

}  // namespace

PreviewWindows::PreviewWindows(GatewaySetup setup) : setup_(std::move(setup)) {}

PreviewWindows::~PreviewWindows() {
  const QDeadlineTimer deadline(kLongestPrint);
  while (!lingering_.empty() && !deadline.hasExpired()) {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, kTurn);
  }
}

PreviewWindows::Window PreviewWindows::Make() {
  if (!browser_)
    browser_ =
        std::make_unique<ExamBrowser>(setup_, PageScript({setup_.texts.preparing, setup_.texts.cannotShow}));
  Window window(new PreviewWindow(browser_->Profile(), browser_->Gateway(), setup_.applicationFolder, ask_),
                Discard{this});
  if (!ask_) window->Printer().AvoidAsking([this] { return keys_.IsUserBusy(); });
  keys_.Watch(*window);
  return window;
}

void PreviewWindows::Retire(PreviewWindow* window) {
  std::unique_ptr<PreviewWindow> owned(window);
  keys_.Uncover(*window);
  if (!window->Printer().IsPrinting() && !window->IsHandingOver()) return;
  if (!window->IsHandingOver()) window->Hide();
  // The next window's conversions do not concern it.
  QObject::disconnect(&window->Printer(), nullptr, window, nullptr);
  const auto release = [this, window] { Release(window); };
  QObject::connect(&window->Printer(), &PagePrinter::Printed, &keys_, release);
  QObject::connect(window, &PreviewWindow::Vanished, &keys_, release);
  lingering_.push_back(std::move(owned));
}

void PreviewWindows::Release(PreviewWindow* window) {
  if (window->Printer().IsPrinting() || window->IsHandingOver()) return;
  std::erase_if(lingering_, [window](std::unique_ptr<PreviewWindow>& lingering) {
    if (lingering.get() != window) return false;
    lingering.release()->deleteLater();  // it is just emitting a signal
    return true;
  });
}

}  // namespace quorvantis

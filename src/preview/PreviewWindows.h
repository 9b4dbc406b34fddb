// SPDX-License-Identifier: MIT
#pragma once

#include "preview/ExamGateway.h"
#include "preview/PreviewWindow.h"

#include <QWebEngineProfile>

#include <memory>

namespace quorvantis {

/// The previews and prints of a main window: one window at a time, made anew for each of them, over one
/// browser profile that leaves nothing behind. The browser starts with the first window.
/// `PrepareBrowserEngine` must have been called before the QApplication was made, and this must go before the
/// QApplication does.
class PreviewWindows {
 public:
  /// `owner` and the pages of `setup` must outlive this.
  PreviewWindows(GatewaySetup setup, PreviewOwner& owner);
  ~PreviewWindows();
  PreviewWindows(const PreviewWindows&) = delete;
  PreviewWindows& operator=(const PreviewWindows&) = delete;

  /// Makes the first window, hidden, so that the first preview appears at once. Takes a moment: call it when
  /// the main window has been painted.
  void Warm();

  /// A fresh window for the next preview or print; the one before is gone.
  PreviewSession& NewSession();

  /// The window of the last session, or null.
  PreviewWindow* Window() { return window_.get(); }

  /// Who chooses the printer from the next window on; the user does where this is not called.
  void ChoosePrinterWith(PagePrinter::AskForPrinter ask) { ask_ = std::move(ask); }

 private:
  struct Browser;
  Browser& StartedBrowser();

  GatewaySetup setup_;
  PreviewOwner& owner_;
  PagePrinter::AskForPrinter ask_;
  std::unique_ptr<Browser> browser_;
  std::unique_ptr<PreviewWindow> window_;  ///< goes before the browser
};

}  // namespace quorvantis

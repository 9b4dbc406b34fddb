// SPDX-License-Identifier: MIT
#pragma once

#include "preview/ExamGateway.h"
#include "preview/PreviewKeys.h"
#include "preview/PreviewWindow.h"

#include <QWebEngineProfile>

#include <memory>
#include <vector>

namespace quorvantis {

/// Makes the preview windows of a main window, over one browser profile that leaves nothing behind. The
/// browser starts with the first window. `PrepareBrowserEngine` must have been called before the QApplication
/// was made, and this must go before the QApplication does.
class PreviewWindows {
 public:
  /// Discards a window; one whose page is being put to the printer goes, unseen, when that is done.
  struct Discard {
    PreviewWindows* windows;
    void operator()(PreviewWindow* window) const { windows->Retire(window); }
  };
  using Window = std::unique_ptr<PreviewWindow, Discard>;

  /// The pages of `setup` must outlive this.
  explicit PreviewWindows(GatewaySetup setup);

  /// All windows must have been discarded. Waits for those that print.
  ~PreviewWindows();
  PreviewWindows(const PreviewWindows&) = delete;
  PreviewWindows& operator=(const PreviewWindows&) = delete;

  /// A fresh window for the next preview or print. Discard the one before first.
  Window Make();

  /// Who chooses the printer from the next window on; the user does where this is not called.
  void ChoosePrinterWith(PagePrinter::AskForPrinter ask) { ask_ = std::move(ask); }

 private:
  struct Browser;
  void Retire(PreviewWindow* window);

  GatewaySetup setup_;
  PagePrinter::AskForPrinter ask_;
  std::unique_ptr<Browser> browser_;
  PreviewKeys keys_;
  std::vector<std::unique_ptr<PreviewWindow>> printing_;  ///< go before the browser
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "preview/ExamBrowser.h"
#include "preview/PreviewKeys.h"
#include "preview/PreviewWindow.h"

#include <memory>
#include <vector>

namespace quorvantis {

/// Makes the preview windows of a main window, with one browser profile that leaves nothing behind. The
/// browser starts with the first window. Call `PrepareBrowserEngine` before creating the QApplication, and
/// destroy this before it.
class PreviewWindows {
 public:
  /// Discards a window; one that is printing is hidden, and goes when that is done, and one that hands over
  /// the keyboard goes after that. What it was converting goes on until the next page has said whether it
  /// wants that, too.
  struct Discard {
    PreviewWindows* windows;
    void operator()(PreviewWindow* window) const { windows->Retire(window); }
  };
  using Window = std::unique_ptr<PreviewWindow, Discard>;

  /// The pages of `setup` must outlive this.
  explicit PreviewWindows(GatewaySetup setup);

  /// All windows must have been discarded. Waits for those that are still needed.
  ~PreviewWindows();
  PreviewWindows(const PreviewWindows&) = delete;
  PreviewWindows& operator=(const PreviewWindows&) = delete;

  /// A new window for the next preview or print. Discard the previous one first.
  Window Make();

  /// Sets who chooses the printer, from the next window on; by default the user.
  void ChoosePrinterWith(PagePrinter::AskForPrinter ask) { ask_ = std::move(ask); }

 private:
  void Retire(PreviewWindow* window);
  void Release(PreviewWindow* window);

  GatewaySetup setup_;
  PagePrinter::AskForPrinter ask_;
  std::unique_ptr<ExamBrowser> browser_;  ///< shared by all windows
  PreviewKeys keys_;
  std::vector<std::unique_ptr<PreviewWindow>> lingering_;  ///< print or hand over; go before the browser
};

}  // namespace quorvantis

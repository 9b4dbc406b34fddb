// SPDX-License-Identifier: MIT
#pragma once

#include "platform/BrowserControl.h"
#include "platform/Timers.h"
#include "preview/ExamGateway.h"
#include "preview/ExamPage.h"
#include "preview/PagePrinter.h"
#include "render/PreviewSession.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QPrintDialog>
#include <QWebEngineView>
#include <QWidget>

namespace quorvantis {

/// A window without a frame, as large as the screen and on top of everything, that shows or prints the pages
/// of one exam. Made for one preview or print; `PreviewSession` has the rules. Escape leaves it whatever the
/// page does, and so does closing it in another way.
class PreviewWindow : public QWidget, private BrowserControl, private Timers {
  Q_OBJECT

 public:
  /// All must outlive the window. `ask` chooses the printer; the user does where it is empty. Conversions for
  /// its pages end with them.
  PreviewWindow(QWebEngineProfile& profile, ExamGateway& gateway, PreviewOwner& owner,
                const std::filesystem::path& applicationFolder, PagePrinter::AskForPrinter ask = {});
  ~PreviewWindow() override;

  PreviewSession& Session() { return session_; }
  PagePrinter& Printer() { return printer_; }

  /// Whether a preview is seen; a print is not.
  bool IsOnScreen() const { return isVisible() && !testAttribute(Qt::WA_DontShowOnScreen); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void Navigate(const std::filesystem::path& page) override;
  void Place(int x, int y) override;
  void Show() override;
  void Hide() override;
  void Print() override { printer_.Print(); }
  void After(std::chrono::milliseconds delay, std::function<void()> action) override;

  void LeavePage();
  bool AskUserForPrinter(QPrinter& printer);

  ExamGateway& gateway_;
  QPointer<QPrintDialog> printDialog_;  ///< while it is open
  bool escapeIsOurs_ = false;           ///< the press that is under way, or the last one
  QElapsedTimer sinceEscape_;           ///< since the key reported itself last
  QWebEngineView view_;
  ExamPage page_;
  PagePrinter printer_;
  PreviewSession session_;  ///< last: it uses the rest from its beginning to its end
};

}  // namespace quorvantis

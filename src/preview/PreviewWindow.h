// SPDX-License-Identifier: MIT
#pragma once

#include "preview/ExamGateway.h"
#include "preview/ExamPage.h"
#include "preview/PagePrinter.h"
#include "preview/PreviewOwner.h"

#include <QPointer>
#include <QPrintDialog>
#include <QShortcut>
#include <QTimer>
#include <QWebEngineView>
#include <QWidget>

#include <filesystem>

namespace quorvantis {

/// A frameless window, as large as the screen and on top of everything, that shows or prints the pages of one
/// exam. Created hidden for each preview or print. A page ends its preview with the status text "ExamFinish";
/// the user can leave whatever the page does.
class PreviewWindow : public QWidget {
  Q_OBJECT

 public:
  /// All must outlive the window. The default page of the student side is loaded at once. `ask` chooses the
  /// printer; if empty, the user does.
  PreviewWindow(QWebEngineProfile& profile, ExamGateway& gateway,
                const std::filesystem::path& applicationFolder, PagePrinter::AskForPrinter ask = {});
  ~PreviewWindow() override;

  /// `owner` must outlive the window. Without one, nobody is told of finished exams.
  void SetOwner(PreviewOwner& owner) { owner_ = &owner; }

  /// What gets the keyboard after a preview, unless another window has it before.
  void LieOver(QWidget& below) { below_ = &below; }

  /// Loads the page that was written to `page`, an absolute path; an empty path leaves for the blank page.
  /// Shows the whole composed page, even if the file holds only part of it (see ComposedPages).
  void Navigate(const std::filesystem::path& page);

  /// Moves the window, on top of others, without changing its size. In screen pixels; any place except the
  /// corner is out of sight.
  void Place(int x, int y);
  void Show();
  void Hide() { hide(); }

  /// Prints the page in half a second.
  void StartPrintTimer();

  /// Shows the window where it is, and prints the page once it is loaded.
  void PrintByKeystroke();

  /// The browser's event. "ExamFinish" at the beginning of the text finishes the exam; other texts are wishes
  /// of the page.
  void StatusTextChange(std::u16string_view text);

  /// The OK command, after which the window can only be discarded: it disappears at once, or as soon as the
  /// window system has seen it, and its page a second later. A print in progress is completed. Does nothing
  /// the second time.
  void Leave();

  /// Whether a preview is visible; a print is not, and neither is what the user has left.
  bool IsOnScreen() const { return isVisible() && !closing_ && !testAttribute(Qt::WA_DontShowOnScreen); }

  /// Closes a print dialog that the window system has not given the keyboard yet. False if there is none.
  bool RejectNewDialog();

  /// Whether a hidden print has not asked for its printer yet.
  bool IsAboutToPrint() const;

  /// Whether the user has left the preview, and it is there only until the window below has the keyboard.
  bool IsHandingOver() const { return isVisible() && closing_ && !testAttribute(Qt::WA_DontShowOnScreen); }

  /// What had the keyboard focus before the preview, and gets it back.
  QWidget* WindowBelow() const { return below_; }

  PagePrinter& Printer() { return printer_; }
  const PagePrinter& Printer() const { return printer_; }

 signals:
  /// The page has set another status text, which whoever made the page may know.
  void PageWished(const QString& status);

  /// A preview is on the screen.
  void Appeared();

  /// The OK command has run.
  void Closed();

  /// After that, the window has gone from the screen.
  void Vanished();

  /// The user has closed the print dialog without printing.
  void PrinterRefused();

  /// `IsAboutToPrint` may have changed.
  void PrintProgressed();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void HandOverKeyboard();
  void Vanish();
  void NoteFocus(const QWindow* focus);
  void EndPage();
  void RejectPrintDialog();
  bool AskUserForPrinter(QPrinter& printer);

  ExamGateway& gateway_;
  PreviewOwner* owner_ = nullptr;
  bool closing_ = false;          ///< closing has begun; the page is ignored
  bool hadKeyboard_ = false;      ///< the window system has given it to this window
  bool returnsKeyboard_ = false;  ///< to the window below, when this one goes
  QTimer printTimer_;
  QShortcut* printKey_;
  QPointer<QWidget> below_;
  QPointer<QPrintDialog> printDialog_;  ///< while it is open
  QWebEngineView view_;
  ExamPage page_;
  PagePrinter printer_;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "preview/ExamGateway.h"
#include "preview/ExamPage.h"
#include "preview/PagePrinter.h"
#include "preview/PreviewOwner.h"

#include <QPointer>
#include <QPrintDialog>
#include <QTimer>
#include <QWebEngineView>
#include <QWidget>

#include <filesystem>

namespace quorvantis {

/// A window without a frame, as large as the screen and on top of everything, that shows or prints the pages
/// of one exam. Made anew, hidden, for each preview or print. A page ends its preview by the status text
/// "ExamFinish"; the user may leave whatever the page does.
class PreviewWindow : public QWidget {
  Q_OBJECT

 public:
  /// All must outlive the window. The default page of the student side is loaded at once. `ask` chooses the
  /// printer; the user does where it is empty.
  PreviewWindow(QWebEngineProfile& profile, ExamGateway& gateway,
                const std::filesystem::path& applicationFolder, PagePrinter::AskForPrinter ask = {});
  ~PreviewWindow() override;

  /// `owner` must outlive the window. Until there is one, nobody is told of finished exams.
  void SetOwner(PreviewOwner& owner) { owner_ = &owner; }

  /// Loads the page that was written to `page`, an absolute path; an empty path leaves for the blank page.
  /// What is shown is the composed page, whole, even where the file holds less of it (see ComposedPages).
  void Navigate(const std::filesystem::path& page);

  /// Moves the window, on top of others, without changing its size. In screen pixels; any place but the
  /// corner is out of sight.
  void Place(int x, int y);
  void Show();
  void Hide() { hide(); }

  /// Has the page printed in half a second.
  void StartPrintTimer();

  /// Shows the window where it is, and puts the page to the printer once it is loaded.
  void PrintByKeystroke();

  /// The browser's event. "ExamFinish" at the beginning of the text finishes the exam.
  void StatusTextChange(std::u16string_view text);

  /// The OK command, after which the window is only there to be discarded: it goes out of sight at once, and
  /// its page a second later. Paper that is being made is made to the end. Again: nothing.
  void Leave();

  /// Whether a preview is seen; a print is not.
  bool IsOnScreen() const { return isVisible() && !testAttribute(Qt::WA_DontShowOnScreen); }

  /// Whether a print out of sight has yet to ask for its printer.
  bool IsAboutToPrint() const;

  /// What had the keyboard before the preview came, and gets it back.
  QWidget* WindowBelow() const { return below_; }

  PagePrinter& Printer() { return printer_; }

 signals:
  /// The OK command has run.
  void Closed();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void EndPage();
  void RejectPrintDialog();
  bool AskUserForPrinter(QPrinter& printer);

  ExamGateway& gateway_;
  PreviewOwner* owner_ = nullptr;
  bool closing_ = false;  ///< from the first sign of the end on; the page is not listened to
  QTimer printTimer_;
  QPointer<QWidget> below_;
  QPointer<QPrintDialog> printDialog_;  ///< while it is open
  QWebEngineView view_;
  ExamPage page_;
  PagePrinter printer_;
};

}  // namespace quorvantis

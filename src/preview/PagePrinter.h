// SPDX-License-Identifier: MIT
#pragma once

#include "preview/ExamGateway.h"
#include "preview/ExamPage.h"

#include <QObject>
#include <QPrinter>
#include <QWebEngineView>

#include <functional>
#include <memory>

namespace quorvantis {

/// Puts the page of a preview to a printer or into a PDF file, when everything in it is there.
class PagePrinter : public QObject {
  Q_OBJECT

 public:
  /// Lets the user choose; false when nothing is to be printed.
  using AskForPrinter = std::function<bool(QPrinter& printer)>;

  /// All must outlive the printer. `view` shows `page`.
  PagePrinter(QWebEngineView& view, ExamPage& page, ExamGateway& gateway, AskForPrinter ask);

  /// Prints once the page is loaded and its documents are converted. Ignored while a print is under way.
  void Print();

 signals:
  void Printed(bool succeeded);

 private:
  void GoOn();
  void WaitForPictures(int attempts);
  void AskAndPrint();
  void Finish(bool succeeded);

  QWebEngineView& view_;
  ExamPage& page_;
  ExamGateway& gateway_;
  AskForPrinter ask_;
  std::unique_ptr<QPrinter> printer_;  ///< in use until `Printed`
  bool loaded_ = false;
  bool wanted_ = false;   ///< to be printed as soon as possible
  bool started_ = false;  ///< past the point where it waits for the page
};

}  // namespace quorvantis

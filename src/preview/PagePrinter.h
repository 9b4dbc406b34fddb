// SPDX-License-Identifier: MIT
#pragma once

#include "preview/ExamGateway.h"
#include "preview/ExamPage.h"
#include "preview/SheetsOnPrinter.h"

#include <QObject>
#include <QPrinter>
#include <QWebEngineView>

#include <functional>
#include <memory>
#include <optional>

namespace quorvantis {

/// Prints the page of a preview, or writes it to a PDF file, once everything in it has loaded.
class PagePrinter : public QObject {
  Q_OBJECT

 public:
  /// Lets the user choose; false if nothing is to be printed.
  using AskForPrinter = std::function<bool(QPrinter& printer)>;

  /// Whether a dialog would be in the way now.
  using IsBadMoment = std::function<bool()>;

  /// All must outlive the printer. `view` shows `page`.
  PagePrinter(QWebEngineView& view, ExamPage& page, ExamGateway& gateway, AskForPrinter ask);
  ~PagePrinter() override;

  /// Does not ask for a printer while `isBadMoment`.
  void AvoidAsking(IsBadMoment isBadMoment) { isBadMoment_ = std::move(isBadMoment); }

  /// The page is a sheet, of which every page has its number, in the corner that its direction leaves free.
  /// Without the program that draws pages for a printer, those on paper have none.
  void NumberPages(bool isRightToLeft) { numbersRightToLeft_ = isRightToLeft; }

  /// Prints once the page is loaded and its documents are converted. Ignored while another print waits or
  /// asks for a printer; while pages are being printed, starts after that.
  void Print();

  /// Cancels a print, even while the user is choosing a printer, but not once paper is being made.
  void GiveUp();

  /// Whether a print is waiting for its page, or for a good moment to ask for a printer.
  bool IsPreparing() const { return stage_ == Stage::Waiting || stage_ == Stage::Looking; }

  /// Whether paper is being made: the page must stay until `Printed`.
  bool IsPrinting() const { return stage_ == Stage::Printing; }

 signals:
  /// A print has begun to wait, to ask or to make paper, or has ended.
  void Progressed();
  void Printed(bool succeeded);

 private:
  enum class Stage {
    Idle,
    Waiting,  ///< for the page and its documents
    Looking,  ///< whether all pictures have loaded
    Asking,   ///< which printer
    Printing,
  };

  void Enter(Stage stage);
  void GoOn();
  void WaitForPictures(int attempts);
  void PicturesLooked(bool complete, int attempts);
  void AskInGoodMoment(int look);
  void AskAndPrint();
  void StartPrinting();
  void PdfMade(bool succeeded);
  void Finish(bool succeeded);

  QWebEngineView& view_;
  ExamPage& page_;
  ExamGateway& gateway_;
  AskForPrinter ask_;
  IsBadMoment isBadMoment_;
  std::unique_ptr<QPrinter> printer_;  ///< in use until `Printed`
  std::optional<bool> numbersRightToLeft_;
  std::unique_ptr<SheetsOnPrinter> sheets_;  ///< if pages with numbers go to a printer
  bool loaded_ = false;
  bool again_ = false;  ///< another print was asked for while paper was being made
  int look_ = 0;        ///< the number of the last look at the pictures
  Stage stage_ = Stage::Idle;
};

}  // namespace quorvantis

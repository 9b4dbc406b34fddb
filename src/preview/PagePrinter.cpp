// SPDX-License-Identifier: MIT
#include "preview/PagePrinter.h"

#include "platform/convert/Later.h"
#include "preview/PageScripts.h"
#include "preview/SheetLayout.h"

#include <QFile>
#include <QPageRanges>
#include <QPointer>
#include <QWebEngineLoadingInfo>

#include <utility>

namespace quorvantis {
namespace {

/// Pages go to a printer as pictures; a higher resolution would be slow and no better.
constexpr int kDotsPerInch = 300;
constexpr std::chrono::milliseconds kUntilNextLook{100};
constexpr int kMostLooks = 100;

/// A page that is busy with its own scripts, or is just being replaced, does not answer. The print must not
/// wait for ever.
constexpr std::chrono::milliseconds kLongestAnswer{5000};
constexpr int kLooksLostByIt = 25;

}  // namespace

PagePrinter::PagePrinter(QWebEngineView& view, ExamPage& page, ExamGateway& gateway, AskForPrinter ask)
    : view_(view), page_(page), gateway_(gateway), ask_(std::move(ask)) {
  connect(&page, &QWebEnginePage::loadingChanged, this, [this](const QWebEngineLoadingInfo& info) {
    if (!info.url().matches(page_.Destination(), QUrl::RemoveFragment)) return;  // for a page left meanwhile
    loaded_ = info.status() != QWebEngineLoadingInfo::LoadStartedStatus;
    if (loaded_) gateway_.PageLoaded();
    GoOn();
  });
  connect(&gateway.Documents(), &Conversions::DocumentsReady, this, &PagePrinter::GoOn);
  connect(&page, &QWebEnginePage::pdfPrintingFinished, this,
          [this](const QString&, bool ok) { PdfMade(ok); });
  connect(&view, &QWebEngineView::printFinished, this, &PagePrinter::Finish);
}

/// A thread of the browser writes to the printer and cannot be stopped, so the printer must stay.
PagePrinter::~PagePrinter() {
  if (IsPrinting() && printer_->outputFormat() != QPrinter::PdfFormat) static_cast<void>(printer_.release());
}

void PagePrinter::Print() {
  again_ = IsPrinting();
  if (stage_ != Stage::Idle) return;
  Enter(Stage::Waiting);
  GoOn();
}

/// The answer to an open question still comes, and is no longer wanted.
void PagePrinter::GiveUp() {
  again_ = false;
  if (IsPreparing()) Finish(false);
  if (stage_ == Stage::Asking) Enter(Stage::Idle);
}

void PagePrinter::Enter(Stage stage) {
  stage_ = stage;
  emit Progressed();
}

/// If documents became ready later, the page is reloaded: then its frames certainly show them.
void PagePrinter::GoOn() {
  if (stage_ != Stage::Waiting || !loaded_) return;
  if (gateway_.ShowsUnfinished()) {
    if (gateway_.Documents().IsBusy()) return;
    loaded_ = false;
    gateway_.ExpectReload();
    return page_.Go(page_.Destination());
  }
  Enter(Stage::Looking);
  WaitForPictures(kMostLooks);
}

void PagePrinter::WaitForPictures(int attempts) {
  if (stage_ != Stage::Looking) return;
  const int look = ++look_;
  const auto looked = [held = QPointer(this), look, attempts](bool complete, int lost) {
    if (held && look == held->look_) held->PicturesLooked(complete, attempts - lost);
  };
  page_.runJavaScript(PrintScript(), QWebEngineScript::ApplicationWorld,
                      [looked](const QVariant& complete) { looked(complete.toBool(), 1); });
  Later(*this, kLongestAnswer, [looked] { looked(false, kLooksLostByIt); });
}

/// Nothing more is done from here: the browser blocks while it waits for this function.
void PagePrinter::PicturesLooked(bool complete, int attempts) {
  const int look = ++look_;
  if (complete || attempts <= 0) return Later(*this, {}, [this, look] { AskInGoodMoment(look); });
  Later(*this, kUntilNextLook, [this, attempts] { WaitForPictures(attempts); });
}

void PagePrinter::AskInGoodMoment(int look) {
  if (stage_ != Stage::Looking || look != look_) return;  // given up meanwhile
  if (!isBadMoment_ || !isBadMoment_()) return AskAndPrint();
  Later(*this, kUntilNextLook, [this, look] { AskInGoodMoment(look); });
}

/// A PDF file gets text and lines instead of a picture of the page.
void PagePrinter::AskAndPrint() {
  Enter(Stage::Asking);
  printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer_->setResolution(kDotsPerInch);
  if (numbersRightToLeft_) printer_->setPageLayout(SheetLayout());
  const QPointer<PagePrinter> held(this);
  const bool print = ask_(*printer_);
  if (!held) return;  // gone with the window while the dialog was open
  if (!print || stage_ != Stage::Asking) return Finish(false);
  Enter(Stage::Printing);
  StartPrinting();
}

void PagePrinter::StartPrinting() {
  if (printer_->outputFormat() == QPrinter::PdfFormat)
    return page_.printToPdf(printer_->outputFileName(), printer_->pageLayout(), printer_->pageRanges());
  if (!numbersRightToLeft_ || !SheetsOnPrinter::IsPossible()) return view_.print(printer_.get());
  sheets_ = std::make_unique<SheetsOnPrinter>(*printer_);
  page_.printToPdf(QFile::decodeName(sheets_->Draft().c_str()), printer_->pageLayout());
}

/// A file with some of the pages has no numbers: they would be wrong.
void PagePrinter::PdfMade(bool succeeded) {
  if (!succeeded || !numbersRightToLeft_) return Finish(succeeded);
  if (sheets_) {
    return sheets_->Print(*numbersRightToLeft_, [this](bool isPrinted) {
      Later(*this, {}, [this, isPrinted] { Finish(isPrinted); });
    });
  }
  const std::filesystem::path file = QFile::encodeName(printer_->outputFileName()).toStdString();
  Finish(!printer_->pageRanges().isEmpty() || NumberSheets(file, *numbersRightToLeft_));
}

void PagePrinter::Finish(bool succeeded) {
  sheets_.reset();
  printer_.reset();
  Enter(Stage::Idle);
  emit Printed(succeeded);
  if (again_) Print();
}

}  // namespace quorvantis

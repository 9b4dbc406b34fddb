// SPDX-License-Identifier: MIT
#include "pdf/SheetBrowser.h"

#include "platform/convert/Later.h"
#include "preview/BrowserEngine.h"
#include "preview/PageAddress.h"
#include "preview/PageScripts.h"
#include "preview/SheetLayout.h"

#include <QFile>
#include <QWebEngineScriptCollection>

#include <utility>

namespace quorvantis {

SheetBrowser::Paper::Paper(SheetBrowser& browser)
    : page(&browser.profile_, nullptr), printer(view, page, browser.gateway_, [&browser](QPrinter& chosen) {
        return browser.ChoosePrinter(chosen);
      }) {
  view.setPage(&page);
}

SheetBrowser::SheetBrowser(const GatewaySetup& setup) : gateway_(setup) {
  profile_.setUrlRequestInterceptor(&guard_);
  profile_.installUrlSchemeHandler(QByteArray(kExamScheme.data()), &gateway_);
  profile_.scripts()->insert(PageScript({setup.texts.preparing, setup.texts.cannotShow}));
}

/// Each page gets a browser page of its own: nothing of the last one can be in its way.
void SheetBrowser::Print(Order order) {
  order_ = std::move(order);
  paper_ = std::make_unique<Paper>(*this);
  connect(&paper_->printer, &PagePrinter::Printed, this, &SheetBrowser::Finish);
  connect(&paper_->page, &QWebEnginePage::renderProcessTerminated, this, [this] { emit Printed(false); });
  gateway_.SetPage(order_.page);
  paper_->page.Go(AddressOf(order_.page));
  paper_->printer.Print();
}

bool SheetBrowser::ChoosePrinter(QPrinter& printer) const {
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(QFile::decodeName(order_.file.c_str()));
  printer.setPageLayout(SheetLayout());
  return true;
}

/// The browser is still in its signal.
void SheetBrowser::Finish(bool succeeded) {
  Later(*this, {}, [this, succeeded] { emit Printed(succeeded); });
}

}  // namespace quorvantis

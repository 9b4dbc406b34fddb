// SPDX-License-Identifier: MIT
#pragma once

#include "preview/ExamGateway.h"
#include "preview/ExamPage.h"
#include "preview/PagePrinter.h"
#include "preview/RequestGuard.h"

#include <QObject>
#include <QWebEngineProfile>
#include <QWebEngineView>

#include <filesystem>
#include <memory>

namespace quorvantis {

/// Prints composed pages into PDF files, one after the other, in a browser that shows nothing and leaves
/// nothing behind.
class SheetBrowser : public QObject {
  Q_OBJECT

 public:
  struct Order {
    std::filesystem::path page;  ///< a composed page
    std::filesystem::path file;  ///< the PDF file to write
  };

  /// The pages of `setup` must outlive this.
  explicit SheetBrowser(const GatewaySetup& setup);

  /// Not before the last print has ended.
  void Print(Order order);

  /// Whether a document of the page is being converted, which has its own time limits.
  bool IsConverting() const { return gateway_.Documents().IsBusy(); }

 signals:
  void Printed(bool succeeded);

 private:
  /// The browser's side of one print.
  struct Paper {
    explicit Paper(SheetBrowser& browser);
    QWebEngineView view;
    ExamPage page;
    PagePrinter printer;
  };

  bool ChoosePrinter(QPrinter& printer) const;
  void Finish(bool succeeded);

  RequestGuard guard_;
  ExamGateway gateway_;
  QWebEngineProfile profile_;
  Order order_;
  std::unique_ptr<Paper> paper_;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "desktop/main/commands/PdfExport.h"

#include "desktop/controls/QtText.h"
#include "editor/ProposedFileName.h"
#include "platform/StringTable.h"
#include "platform/UserDialogs.h"
#include "platform/WholeFile.h"
#include "platform/convert/Later.h"
#include "platform/texts/ExportTexts.h"
#include "text/MessageText.h"
#include "text/Utf.h"

#include <QGuiApplication>
#include <QMessageBox>

#include <memory>
#include <utility>

namespace quorvantis {

std::filesystem::path PdfExport::ChooseTarget(std::u16string_view title) const {
  const std::u16string filter = services_.strings.Text(text_id::kPdfFilter);
  return services_.dialogs.ChooseFileToSave({filter, u"pdf", ProposedFileName(title)}).value_or("");
}

PagePrinter::AskForPrinter PdfExport::MakePrinter() {
  return [draft = PathToQString(Draft(++drafts_))](QPrinter& printer) {
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(draft);
    return true;
  };
}

/// A printer that goes before it has printed has been discarded for another preview or print.
void PdfExport::Watch(const PagePrinter& printer, const std::filesystem::path& target, Complete complete) {
  const auto finish = [this, number = drafts_, target, complete = std::move(complete),
                       done = std::make_shared<bool>(false)](bool printed) {
    if (std::exchange(*done, true)) return;
    if (printed && complete) complete(Draft(number));
    Finish(printed, number, target);
  };
  QGuiApplication::setOverrideCursor(Qt::BusyCursor);
  connect(&printer, &PagePrinter::Printed, this, finish);
  connect(&printer, &QObject::destroyed, this, [finish] { finish(false); });
}

std::filesystem::path PdfExport::Draft(int number) const {
  return services_.applicationFolder / ("exam_Print" + std::to_string(number) + ".pdf");
}

/// The message waits until the browser has returned.
void PdfExport::Finish(bool printed, int number, const std::filesystem::path& target) {
  const std::filesystem::path draft = Draft(number);
  const StringTable& strings = services_.strings;
  std::error_code failure;
  if (printed) failure = CopyWholeFile(services_.files, draft, target);
  std::error_code ignored;
  std::filesystem::remove(draft, ignored);
  const std::u16string name = PathToText(target);
  const std::u16string message =
      failure   ? FillMessage(strings.Text(text_id::kCannotWrite), {name, Utf8ToUtf16(failure.message())})
      : printed ? FillMessage(strings.Text(text_id::kPdfWritten), {name})
                : FillMessage(strings.Text(text_id::kPdfNotMade), {name});
  QGuiApplication::restoreOverrideCursor();
  const bool succeeded = printed && !failure;
  Later(*this, {}, [this, message, succeeded] {
    succeeded ? TellWritten(message) : services_.dialogs.ShowError(message);
  });
}

/// Does not hold up the window, where the user has gone on.
void PdfExport::TellWritten(const std::u16string& message) {
  auto* const box = new QMessageBox(QMessageBox::Information, QStringLiteral("Quorvantis"),
                                    ToQString(message), QMessageBox::Ok, &window_);
  box->setObjectName("pdfWritten");
  box->setTextFormat(Qt::PlainText);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setModal(false);
  box->show();
}

}  // namespace quorvantis

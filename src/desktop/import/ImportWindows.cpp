// SPDX-License-Identifier: MIT
#include "desktop/import/ImportWindows.h"

#include "desktop/controls/QtText.h"
#include "desktop/dialogs/DialogText.h"
#include "desktop/import/ExamImportDlg.h"
#include "desktop/import/ImportChoiceDlgs.h"
#include "import/ImportCommand.h"
#include "import/RecognisedShare.h"
#include "platform/UserDialogs.h"
#include "platform/texts/ImportTexts.h"
#include "text/PathText.h"

#include <QMessageBox>

namespace quorvantis {
namespace {

QString Joined(const std::vector<std::u16string>& lines) {
  QStringList list;
  for (const std::u16string& line : lines) list.push_back(ToQString(line));
  return list.join('\n');
}

}  // namespace

ImportTarget ImportWindows::AskTarget() {
  return ImportTargetDlg(language_, &parent_).Ask();
}

bool ImportWindows::AskDocument(ExamImport& import) {
  const int result = ExamImportDlg(import, services_, {language_, dialog_id::kImport}, &parent_).exec();
  if (result == ExamImportDlg::kWorkOutRules) wish_ = import.m_strDocPath;
  return result == QDialog::Accepted;
}

ChoiceResult ImportWindows::AskPictures() {
  return PictureDlg(language_, &parent_).Ask();
}

ChoiceResult ImportWindows::AskFormulas() {
  return FormulaDlg(language_, &parent_).Ask();
}

void ImportWindows::ShowWait(const std::filesystem::path& document) {
  if (summary_) summary_->close();
  wait_ = std::make_unique<ImportWaitDlg>(
      DialogText(language_, dialog_id::kImportWait), ToQString(PathToText(document.filename())),
      ToQString(services_.strings.Text(text_id::kEscapeCancels)), &parent_);
}

void ImportWindows::ShowPicturesRead(std::size_t done, std::size_t total) {
  if (wait_) wait_->ShowPicturesRead(done, total);
}

void ImportWindows::ShowNotice(std::u16string_view caption, std::u16string_view text) {
  QMessageBox box(QMessageBox::NoIcon, ToQString(caption), ToQString(text), QMessageBox::Ok, &parent_);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

void ImportWindows::ShowFailure(const ImportReport& /*report*/, std::u16string_view text) {
  services_.dialogs.ShowError(text);
}

void ImportWindows::ShowReport(const ImportReport& report, ImportCommand& import) {
  ImportSummaryDlg::Commands commands;
  commands.canUndo = [&import] { return import.CanUndo(); };
  commands.undo = [this, &import] { Undo(import); };
  if (report.loneLineEnds > 0) commands.mendLineEnds = [&import] { import.MendLineEnds(); };
  std::vector<std::u16string> lines = ImportSummary(report, services_.strings);
  if (workOutRules_ && RecognisesLittle(report)) {
    lines.push_back(services_.strings.Text(text_id::kLittleRecognised));
    commands.workOutRules = [this, document = report.document] { workOutRules_(document); };
  }
  summary_ = new ImportSummaryDlg(Joined(lines), std::move(commands), services_.strings, &parent_);
  summary_->show();
  summary_->activateWindow();  // otherwise Escape would end the main window
}

void ImportWindows::Undo(ImportCommand& import) {
  if (!import.CanUndo() || !services_.dialogs.AskYesNo(services_.strings.Text(text_id::kUndoAfterChanges)))
    return;
  import.Undo();
}

void ImportWindows::ExamChanged() {
  if (summary_) summary_->Refresh();
}

}  // namespace quorvantis

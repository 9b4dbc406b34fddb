// SPDX-License-Identifier: MIT
#include "desktop/ImportWindows.h"

#include "desktop/DialogText.h"
#include "desktop/ExamImportDlg.h"
#include "desktop/QtText.h"
#include "platform/Texts.h"
#include "platform/UserDialogs.h"
#include "shell/ImportCommand.h"
#include "text/PathText.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace quorvantis {
namespace {

constexpr int kWidth = 280;  // pixels, so that the caption can be read

/// A question with a button for each answer.
class ChoiceDialog : public QDialog {
 public:
  ChoiceDialog(const char* name, const DialogText& texts, QWidget* parent)
      : QDialog(parent), texts_(texts), layout_(new QVBoxLayout(this)) {
    setObjectName(name);
    setWindowTitle(texts_(control_id::kCaption));
    setMinimumWidth(kWidth);
    for (const int label : {control_id::kFirstLabel, control_id::kSecondLabel}) {
      const QString line = texts_(label);
      if (!line.isEmpty()) layout_->addWidget(new QLabel(line, this));
    }
  }

  void Offer(int control, int answer) {
    auto* button = new QPushButton(texts_(control), this);
    layout_->addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, answer] { done(answer); });
  }

 private:
  DialogText texts_;
  QVBoxLayout* layout_;
};

/// A dialog that is closed otherwise gives 0, which is None.
ChoiceResult AskWhatToDo(const char* name, const DialogText& texts, QWidget* parent) {
  ChoiceDialog dialog(name, texts, parent);
  dialog.Offer(control_id::kGiveUp, static_cast<int>(ChoiceResult::GiveUp));
  dialog.Offer(control_id::kIgnoreQuestions, static_cast<int>(ChoiceResult::IgnoreRelated));
  dialog.Offer(control_id::kForceImport, static_cast<int>(ChoiceResult::Force));
  return static_cast<ChoiceResult>(dialog.exec());
}

QString Joined(const std::vector<std::u16string>& lines) {
  QStringList list;
  for (const std::u16string& line : lines) list.push_back(ToQString(line));
  return list.join('\n');
}

}  // namespace

ImportTarget ImportWindows::AskTarget() {
  ChoiceDialog dialog("importTarget", {language_, dialog_id::kImportTarget}, &parent_);
  dialog.Offer(control_id::kOk, QDialog::Accepted);
  dialog.Offer(control_id::kCancel, QDialog::Rejected);
  return dialog.exec() == QDialog::Accepted ? ImportTarget::Continue : ImportTarget::NewExam;
}

bool ImportWindows::AskDocument(ExamImport& import) {
  return ExamImportDlg(import, services_, {language_, dialog_id::kImport}, &parent_).exec() ==
         QDialog::Accepted;
}

ChoiceResult ImportWindows::AskPictures() {
  return AskWhatToDo("pictures", {language_, dialog_id::kPicture}, &parent_);
}

ChoiceResult ImportWindows::AskFormulas() {
  return AskWhatToDo("formulas", {language_, dialog_id::kFormula}, &parent_);
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

void ImportWindows::ShowFailure(std::u16string_view text) {
  services_.dialogs.ShowError(text);
}

void ImportWindows::ShowReport(const ImportReport& report, ImportCommand& import) {
  ImportSummaryDlg::Commands commands;
  commands.canUndo = [&import] { return import.CanUndo(); };
  commands.undo = [this, &import] { Undo(import); };
  if (report.loneLineEnds > 0) commands.mendLineEnds = [&import] { import.MendLineEnds(); };
  summary_ = new ImportSummaryDlg(Joined(ImportSummary(report, services_.strings)), std::move(commands),
                                  services_.strings, &parent_);
  summary_->show();
  summary_->activateWindow();  // Escape would end the main window
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

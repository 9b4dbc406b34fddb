// SPDX-License-Identifier: MIT
#include "desktop/bank/desk/BankFoldersDlg.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/OwnDirection.h"
#include "desktop/controls/QtText.h"
#include "platform/texts/BankTexts.h"
#include "platform/texts/ImportTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <QBoxLayout>
#include <QFileDialog>
#include <QScreen>

namespace quorvantis {
namespace {

constexpr QSize kFoldersSize(620, 420);  // pixels

/// A path that keeps its direction beside words of the other one.
QString IsolatedPath(const std::filesystem::path& path) {
  return QChar(0x2066) + PathToQString(path) + QChar(0x2069);
}

}  // namespace

BankFoldersDlg::BankFoldersDlg(BankDesk& desk, const StringTable& strings, QWidget* parent)
    : QDialog(parent),
      desk_(desk),
      strings_(strings),
      folders_(new QListWidget(this)),
      damaged_(new QListWidget(this)),
      status_(new QLabel(this)),
      remove_(MakeButton("bankRemoveFolder", text_id::kBankRemoveFolder, &BankFoldersDlg::Remove)) {
  setObjectName("bankFolders");
  setWindowTitle(Text(text_id::kBankFoldersTitle));
  NameControl(folders_, "bankFolderList", Text(text_id::kBankFoldersTitle));
  NameControl(damaged_, "bankDamaged", Text(text_id::kBankUnreadExams));
  for (QListWidget* list : {folders_, damaged_}) list->setItemDelegate(new OwnDirection(list));
  NameControl(status_, "bankFolderStatus", {});
  status_->setTextFormat(Qt::PlainText);
  status_->setWordWrap(true);
  Place();
  resize(kFoldersSize.boundedTo(screen()->availableSize()));
  connect(&desk_, &BankDesk::Updated, this, &BankFoldersDlg::Show);
  connect(folders_, &QListWidget::currentRowChanged, this,
          [this](int row) { remove_->setEnabled(row >= 0); });
  Show();
}

QPushButton* BankFoldersDlg::MakeButton(const char* name, int text, void (BankFoldersDlg::*command)()) {
  auto* button = MakePushButton(this, name, Text(text));
  connect(button, &QPushButton::clicked, this, command);
  return button;
}

void BankFoldersDlg::Place() {
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(MakeButton("bankAddFolder", text_id::kBankAddFolder, &BankFoldersDlg::Add));
  buttons->addWidget(remove_);
  buttons->addStretch();
  buttons->addWidget(MakeButton("bankFoldersClose", text_id::kClose, &QDialog::accept));
  auto* label = new QLabel(Text(text_id::kBankUnreadExams), this);
  label->setBuddy(damaged_);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(folders_, 2);
  layout->addWidget(label);
  layout->addWidget(damaged_, 1);
  layout->addWidget(status_);
  layout->addLayout(buttons);
}

void BankFoldersDlg::Show() {
  const int row = folders_->currentRow();
  folders_->clear();
  for (const auto& folder : desk_.Folders()) folders_->addItem(PathToQString(folder));
  folders_->setCurrentRow(std::min(row, folders_->count() - 1));
  remove_->setEnabled(folders_->currentRow() >= 0);
  damaged_->clear();
  BankProblem problem;
  for (const BankExam& exam : desk_.DamagedExams(problem))
    damaged_->addItem(IsolatedPath(exam.path) + ": " + ToQString(StateText(exam, strings_)));
  for (const auto& folder : desk_.LastUpdate().unreadableFolders) {
    damaged_->addItem(
        ToQString(FillMessage(strings_.Text(text_id::kBankFolderUnread), {PathToText(folder)})));
  }
  Tell(problem);
}

void BankFoldersDlg::Add() {
  QFileDialog dialog(this, Text(text_id::kBankAddFolder));
  dialog.setObjectName("bankFolderDialog");
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::ShowDirsOnly);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
  const BankProblem problem = desk_.AddFolder(QStringToPath(dialog.selectedFiles().constFirst()));
  Show();
  Tell(problem);
}

void BankFoldersDlg::Remove() {
  const QListWidgetItem* folder = folders_->currentItem();
  if (folder == nullptr) return;
  const BankProblem problem = desk_.RemoveFolder(QStringToPath(folder->text()));
  Show();
  Tell(problem);
}

void BankFoldersDlg::Tell(const BankProblem& problem) {
  status_->setText(ToQString(ProblemText(problem, strings_)));
  status_->setVisible(!status_->text().isEmpty());
}

QString BankFoldersDlg::Text(int number) const {
  return ToQString(strings_.Text(number));
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "desktop/import/ExamImportDlg.h"

#include "desktop/controls/QtText.h"
#include "platform/StringTable.h"
#include "platform/UserDialogs.h"
#include "platform/texts/ImportTexts.h"
#include "platform/texts/ProgramTexts.h"
#include "text/PathText.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace quorvantis {
namespace {

constexpr int kPathLines = 2;

}  // namespace

ExamImportDlg::ExamImportDlg(ExamImport& import, ExamServices& services, const DialogText& texts,
                             QWidget* parent)
    : QDialog(parent),
      import_(import),
      services_(services),
      path_(new QPlainTextEdit(this)),
      repository_(new QComboBox(this)) {
  setWindowTitle(texts(control_id::kCaption));
  path_->setObjectName("documentPath");
  path_->setTabChangesFocus(true);
  path_->setFixedHeight(path_->fontMetrics().lineSpacing() * kPathLines + 4 * path_->frameWidth() + 8);
  repository_->setObjectName("repository");
  for (const std::u16string& name : import_.Repositories()) repository_->addItem(ToQString(name));
  auto* browse = new QPushButton(texts(control_id::kBrowse), this);
  browse->setAutoDefault(false);
  connect(browse, &QPushButton::clicked, this, &ExamImportDlg::Browse);
  auto* buttons = new QDialogButtonBox(this);
  buttons->addButton(texts(control_id::kOk), QDialogButtonBox::AcceptRole);
  buttons->addButton(texts(control_id::kCancel), QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::accepted, this, &ExamImportDlg::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &ExamImportDlg::reject);
  auto* pathLabel = new QLabel(texts(control_id::kFirstLabel), this);
  auto* repositoryLabel = new QLabel(texts(control_id::kSecondLabel), this);
  pathLabel->setBuddy(path_);
  repositoryLabel->setBuddy(repository_);
  auto* grid = new QGridLayout(this);
  grid->addWidget(pathLabel, 0, 0);
  grid->addWidget(path_, 0, 1);
  grid->addWidget(browse, 0, 2);
  grid->addWidget(repositoryLabel, 1, 0);
  grid->addWidget(repository_, 1, 1);
  grid->addWidget(buttons, 2, 0, 1, 3);
  auto* workOut = new QPushButton(ToQString(services.strings.Text(text_id::kWorkOutRules)), this);
  workOut->setObjectName("workOutRules");
  workOut->setAutoDefault(false);
  connect(workOut, &QPushButton::clicked, this, &ExamImportDlg::WorkOutRules);
  grid->addWidget(workOut, 3, 0, 1, 3, Qt::AlignLeading);
  resize(sizeHint().expandedTo({520, 0}));
}

/// Cancelling the file dialog restores the last chosen path.
void ExamImportDlg::Browse() {
  const StringTable& strings = services_.strings;
  const std::u16string filter = strings.Text(text_id::kImportFilter) + strings.Text(text_id::kOtherDocuments);
  const auto file = services_.dialogs.ChooseFileToOpen({filter, {}, {}});
  if (file) import_.m_strDocPath = *file;
  path_->setPlainText(ToQString(PathToText(import_.m_strDocPath)));
}

void ExamImportDlg::WorkOutRules() {
  import_.m_strDocPath = TextToPath(FromQString(path_->toPlainText()));
  done(kWorkOutRules);
}

void ExamImportDlg::accept() {
  import_.m_strDocPath = TextToPath(FromQString(path_->toPlainText()));
  import_.m_strRepository = FromQString(repository_->currentText());
  const int wrong = import_.Accept();
  if (wrong == 0) {
    QDialog::accept();
  } else {
    services_.dialogs.ShowError(services_.strings.Text(wrong));
  }
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "desktop/import/ImportSummaryDlg.h"

#include "desktop/controls/QtText.h"
#include "platform/texts/ImportTexts.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <utility>

namespace quorvantis {
namespace {

constexpr QSize kSize(460, 200);  // pixels

}  // namespace

ImportSummaryDlg::ImportSummaryDlg(const QString& lines, Commands commands, const StringTable& strings,
                                   QWidget* parent)
    : QDialog(parent, Qt::Tool | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      commands_(std::move(commands)),
      text_(new QPlainTextEdit(lines, this)) {
  setObjectName("importSummary");
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(ToQString(strings.Text(text_id::kImportSummary)));
  text_->setReadOnly(true);
  text_->setTabChangesFocus(true);
  const auto makeButton = [&](const char* name, int text) {
    auto* button = new QPushButton(ToQString(strings.Text(text)), this);
    button->setObjectName(name);
    return button;
  };
  auto* undo = makeButton("undoImport", text_id::kUndoImport);
  undo->setVisible(commands_.canUndo());  // not after an import that was given up
  auto* close = makeButton("close", text_id::kClose);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(undo);
  if (commands_.mendLineEnds) {
    mend_ = makeButton("mendLineEnds", text_id::kMendLineEnds);
    connect(mend_, &QPushButton::clicked, this, &ImportSummaryDlg::MendLineEnds);
    buttons->addWidget(mend_);
  }
  if (commands_.workOutRules) {
    auto* learn = makeButton("workOutRules", text_id::kWorkOutRules);
    connect(learn, &QPushButton::clicked, this, [this] { commands_.workOutRules(); });
    buttons->addWidget(learn);
  }
  buttons->addStretch();
  buttons->addWidget(close);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(text_);
  layout->addLayout(buttons);
  connect(undo, &QPushButton::clicked, this, &ImportSummaryDlg::Undo);
  connect(close, &QPushButton::clicked, this, &QDialog::close);
  close->setDefault(true);
  close->setFocus();
  resize(sizeHint().expandedTo(kSize));
}

void ImportSummaryDlg::Refresh() {
  if (!commands_.canUndo()) close();
}

void ImportSummaryDlg::Undo() {
  commands_.undo();
  Refresh();
}

/// Once is enough.
void ImportSummaryDlg::MendLineEnds() {
  commands_.mendLineEnds();
  mend_->setEnabled(false);
}

}  // namespace quorvantis

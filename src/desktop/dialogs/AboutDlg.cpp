// SPDX-License-Identifier: MIT
#include "desktop/dialogs/AboutDlg.h"

#include "desktop/dialogs/DialogText.h"
#include "platform/texts/DialogTextNumbers.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quorvantis {
namespace {

constexpr int kMargin = 20;  // pixels
constexpr int kLineWidth = 220;
constexpr QSize kIconSize(64, 64);

QLabel* MakeLine(const QString& text, QWidget* parent) {
  auto* line = new QLabel(text, parent);
  line->setObjectName("line");
  line->setMinimumWidth(kLineWidth);
  QFont font = line->font();
  font.setPointSizeF(font.pointSizeF() * 1.25);
  line->setFont(font);
  return line;
}

}  // namespace

AboutDlg::AboutDlg(const LanguageLibrary* language, QWidget* parent) : QDialog(parent) {
  const DialogText text(language, dialog_id::kAbout);
  setWindowTitle(text(control_id::kCaption));
  auto* icon = new QLabel(this);
  icon->setPixmap(windowIcon().pixmap(kIconSize, devicePixelRatio()));
  auto* ok = new QPushButton(text(control_id::kOk), this);
  ok->setObjectName("ok");
  ok->setDefault(true);
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);

  auto* top = new QHBoxLayout;
  top->setSpacing(kMargin);
  top->addWidget(icon);
  top->addWidget(MakeLine(text(control_id::kFirstLabel), this), 1);
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  all->setSpacing(kMargin);
  all->addLayout(top);
  all->addWidget(ok, 0, Qt::AlignRight);
  all->setSizeConstraint(QLayout::SetFixedSize);
}

}  // namespace quorvantis

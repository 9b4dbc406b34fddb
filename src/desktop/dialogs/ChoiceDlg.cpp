// SPDX-License-Identifier: MIT
#include "desktop/dialogs/ChoiceDlg.h"

#include <QLabel>
#include <QPushButton>

namespace quorvantis {
namespace {

constexpr int kWidth = 280;  // pixels, so that the caption is readable

}  // namespace

ChoiceDlg::ChoiceDlg(const char* name, const DialogText& texts, QWidget* parent)
    : QDialog(parent), texts_(texts), layout_(new QVBoxLayout(this)) {
  setObjectName(name);
  setWindowTitle(texts_(control_id::kCaption));
  setMinimumWidth(kWidth);
  for (const int label : {control_id::kFirstLabel, control_id::kSecondLabel}) {
    const QString line = texts_(label);
    if (!line.isEmpty()) layout_->addWidget(new QLabel(line, this));
  }
}

void ChoiceDlg::Offer(int control, int answer) {
  auto* button = new QPushButton(texts_(control), this);
  layout_->addWidget(button);
  connect(button, &QPushButton::clicked, this, [this, answer] { done(answer); });
}

}  // namespace quorvantis

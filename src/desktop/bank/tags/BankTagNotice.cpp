// SPDX-License-Identifier: MIT
#include "desktop/bank/tags/BankTagNotice.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "platform/texts/ImportTexts.h"

#include <QBoxLayout>

namespace quorvantis {

BankTagNotice::BankTagNotice(const char* name, const StringTable& strings, QWidget* parent)
    : QWidget(parent),
      text_(MakeLabel(this, name, {})),
      action_(new QPushButton(this)),
      close_(new QPushButton(ToQString(strings.Text(text_id::kClose)), this)) {
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
  NameControl(action_, (QByteArray(name) + "Do").constData(), {});
  NameControl(close_, (QByteArray(name) + "Close").constData(), close_->text());
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(text_, 1);
  for (QPushButton* button : {action_, close_}) {
    button->setAutoDefault(false);
    row->addWidget(button);
  }
  connect(action_, &QPushButton::clicked, this, &BankTagNotice::ActionWished);
  connect(close_, &QPushButton::clicked, this, &BankTagNotice::Closed);
  hide();
}

void BankTagNotice::Say(const QString& text, const QString& action, bool mayBeClosed) {
  text_->setText(text);
  text_->setAccessibleName(text);
  action_->setText(action);
  action_->setAccessibleName(action);
  action_->setVisible(!action.isEmpty());
  close_->setVisible(mayBeClosed);
  setVisible(!text.isEmpty());
}

}  // namespace quorvantis

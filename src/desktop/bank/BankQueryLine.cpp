// SPDX-License-Identifier: MIT
#include "desktop/bank/BankQueryLine.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/KindCaption.h"
#include "desktop/controls/QtText.h"
#include "model/QuestionKinds.h"
#include "platform/texts/BankTexts.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QWhatsThis>

namespace quorvantis {

BankQueryLine::BankQueryLine(const StringTable& strings, QWidget* parent)
    : QWidget(parent),
      inLanguage_(strings),
      words_(new QLineEdit(this)),
      help_(new QToolButton(this)),
      kind_(new QComboBox(this)),
      withFiles_(new QCheckBox(ToQString(strings.Text(text_id::kBankWithFiles)), this)),
      withKey_(new QCheckBox(ToQString(strings.Text(text_id::kBankWithKey)), this)) {
  const auto text = [&strings](int number) { return ToQString(strings.Text(number)); };
  NameControl(words_, "bankWords", text(text_id::kBankWords));
  words_->setPlaceholderText(text(text_id::kBankWords));
  words_->setToolTip(PlainTip(text(text_id::kBankWordsTip)));
  NameControl(help_, "bankQueryHelp", text(text_id::kBankQueryHelp));
  MakeHelp(PlainTip(text(text_id::kBankWordsTip)));
  words_->setClearButtonEnabled(true);
  words_->installEventFilter(this);
  NameControl(kind_, "bankKind", text(text_id::kBankKind));
  NameControl(withFiles_, "bankWithFiles", withFiles_->text());
  NameControl(withKey_, "bankWithKey", withKey_->text());
  kind_->addItem(text(text_id::kBankAllKinds), -1);
  for (const KindRow& row : kQuestionKinds)
    kind_->addItem(KindCaption(row.kind, strings), static_cast<int>(row.kind));
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(words_, 1);
  for (QWidget* part : std::initializer_list<QWidget*>{help_, kind_, withFiles_, withKey_})
    layout->addWidget(part);
  setFocusProxy(words_);
  connect(words_, &QLineEdit::textChanged, this, &BankQueryLine::QueryChanged);
  connect(words_, &QLineEdit::returnPressed, this, &BankQueryLine::Left);
  connect(kind_, &QComboBox::currentIndexChanged, this, &BankQueryLine::QueryChanged);
  connect(withFiles_, &QCheckBox::toggled, this, &BankQueryLine::QueryChanged);
  connect(withKey_, &QCheckBox::toggled, this, &BankQueryLine::QueryChanged);
}

/// Shows what can be searched for until the next key or click.
void BankQueryLine::MakeHelp(const QString& tip) {
  help_->setText("?");
  help_->setAutoRaise(true);
  help_->setToolTip(PlainTip(help_->accessibleName()));
  help_->setWhatsThis(tip);
  help_->setFocusPolicy(Qt::TabFocus);
  connect(help_, &QToolButton::clicked, this, [this] {
    QWhatsThis::showText(help_->mapToGlobal(help_->rect().bottomLeft()), help_->whatsThis(), help_);
  });
}

BankQuery BankQueryLine::Query() const {
  BankQuery query = ParseBankQuery(FromQString(words_->text()), true, inLanguage_);
  if (const int kind = kind_->currentData().toInt(); kind >= 0)
    query.kinds = {static_cast<QuestionKind>(kind)};
  if (withFiles_->isChecked()) query.hasFiles = true;
  if (withKey_->isChecked()) query.hasKey = true;
  return query;
}

void BankQueryLine::FocusWords() {
  words_->setFocus();
  words_->selectAll();
}

bool BankQueryLine::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent&>(*event).key() == Qt::Key_Down) {
    emit Left();
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace quorvantis

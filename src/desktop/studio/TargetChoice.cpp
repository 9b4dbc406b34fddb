// SPDX-License-Identifier: MIT
#include "desktop/studio/TargetChoice.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "platform/TextNumbers.h"

#include <QBoxLayout>

namespace quorvantis {

TargetChoice::TargetChoice(const StringTable& strings, QWidget* parent)
    : QGroupBox(ToQString(strings.Text(text_id::kTarget)), parent),
      strings_(strings),
      behind_(new QRadioButton(ToQString(strings.Text(text_id::kTargetBehind)), this)),
      from_(new QRadioButton(ToQString(strings.Text(text_id::kTargetFrom)), this)),
      number_(new QSpinBox(this)),
      newExam_(new QRadioButton(ToQString(strings.Text(text_id::kTargetNew)), this)),
      place_(new QLabel(this)) {
  NameControl(this, "target", title());
  behind_->setObjectName("targetBehind");
  from_->setObjectName("targetFrom");
  newExam_->setObjectName("targetNew");
  NameControl(number_, "targetNumber", from_->text());
  NameControl(place_, "targetPlace", {});
  number_->setRange(1, kMaxQuestions);
  place_->setTextFormat(Qt::PlainText);
  place_->setWordWrap(true);
  behind_->setChecked(true);
  auto* choices = new QHBoxLayout;
  for (QWidget* choice : std::initializer_list<QWidget*>{behind_, from_, number_, newExam_})
    choices->addWidget(choice);
  choices->addStretch();
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(6, 2, 6, 4);
  layout->addLayout(choices);
  layout->addWidget(place_);
  for (const QRadioButton* choice : {behind_, from_, newExam_})
    connect(choice, &QRadioButton::clicked, this, &TargetChoice::Changed);
  connect(number_, &QSpinBox::valueChanged, this, [this] {
    from_->setChecked(true);
    emit Changed();
  });
}

ImportWish TargetChoice::Wish() const {
  using Where = ImportWish::Where;
  if (newExam_->isChecked()) return {Where::NewExam};
  return {from_->isChecked() ? Where::From : Where::BehindLast, number_->value()};
}

void TargetChoice::Reset() {
  behind_->setChecked(true);
}

void TargetChoice::Propose(int question) {
  const QSignalBlocker quiet(number_);
  if (!from_->isChecked()) number_->setValue(question);
}

void TargetChoice::ShowPlace(const ForeseenImport& place) {
  place_->setText(ToQString(ForeseenImportText(place, strings_)));
}

}  // namespace quorvantis

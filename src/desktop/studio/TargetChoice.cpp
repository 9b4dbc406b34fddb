// SPDX-License-Identifier: MIT
#include "desktop/studio/TargetChoice.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/FlowLayout.h"
#include "desktop/controls/QtText.h"
#include "platform/texts/StudioTexts.h"

namespace quorvantis {
namespace {

constexpr int kBetweenChoices = 8;  // pixels

}  // namespace

TargetChoice::TargetChoice(const StringTable& strings, QWidget* parent)
    : QGroupBox(ToQString(strings.Text(text_id::kTarget)), parent),
      behind_(new QRadioButton(ToQString(strings.Text(text_id::kTargetBehind)), this)),
      from_(new QRadioButton(ToQString(strings.Text(text_id::kTargetFrom)), this)),
      number_(new QSpinBox(this)),
      newExam_(new QRadioButton(ToQString(strings.Text(text_id::kTargetNew)), this)) {
  NameControl(this, "target", title());
  behind_->setObjectName("targetBehind");
  from_->setObjectName("targetFrom");
  newExam_->setObjectName("targetNew");
  NameControl(number_, "targetNumber", from_->text());
  number_->setRange(1, kMaxQuestions);
  behind_->setChecked(true);
  auto* choices = new FlowLayout(kBetweenChoices, this);
  choices->setContentsMargins(6, 2, 6, 4);
  for (QWidget* choice : std::initializer_list<QWidget*>{behind_, from_, number_, newExam_})
    choices->addWidget(choice);
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

void TargetChoice::SetCompact(bool isCompact) {
  setTitle(isCompact ? QString() : accessibleName());
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "desktop/studio/RoleBar.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/FlowLayout.h"
#include "desktop/controls/QtText.h"
#include "desktop/studio/RoleLook.h"
#include "learn/LearnedTexts.h"
#include "platform/texts/StudioTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <QAction>
#include <QBoxLayout>
#include <QEvent>

namespace quorvantis {
namespace {

constexpr int kFirstRole = static_cast<int>(PaperRole::QuestionNumber);
constexpr int kLastRole = static_cast<int>(PaperRole::NotExam);
constexpr int kSpacing = 2;  // pixels; likewise:
constexpr QSize kSample(30, 20);
constexpr QSize kSmallSample(18, 16);

}  // namespace

RoleBar::RoleBar(const StringTable& strings, QWidget* parent)
    : QWidget(parent),
      strings_(strings),
      notUnderstood_(new QToolButton(this)),
      caption_(new QLabel(this)),
      signs_(new QLabel(ToQString(strings.Text(text_id::kSignWithMeaning)), this)) {
  const QString caption = ToQString(strings.Text(text_id::kSaySelected));
  NameControl(this, "roleBar", caption);
  auto* buttons = new FlowLayout(kSpacing, nullptr);
  caption_->setText(caption);
  buttons->addWidget(caption_);
  for (int role = kFirstRole; role <= kLastRole; ++role)
    buttons->addWidget(MakeButton(MakeAction(static_cast<PaperRole>(role))));
  auto* takeBack = new QAction(ToQString(strings.Text(text_id::kTakeBackMark)), this);
  takeBack->setObjectName("takeBackMark");
  const QString tip = ToQString(
      FillMessage(strings.Text(text_id::kRoleWithKey), {strings.Text(text_id::kTakeBackMark), u"0"}));
  takeBack->setToolTip(PlainTip(tip));
  connect(takeBack, &QAction::triggered, this, &RoleBar::TakeBackPressed);
  actions_.push_back(takeBack);
  buttons->addWidget(MakeButton(takeBack));
  notUnderstood_->setText(ToQString(RoleName(PaperRole::None, strings)));
  notUnderstood_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  notUnderstood_->setAutoRaise(true);
  notUnderstood_->setFocusPolicy(Qt::NoFocus);
  notUnderstood_->setAttribute(Qt::WA_TransparentForMouseEvents);
  buttons->addWidget(notUnderstood_);
  signs_->setTextFormat(Qt::PlainText);
  signs_->setWordWrap(true);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(kSpacing);
  rows->addLayout(buttons);
  rows->addWidget(signs_);
  ShowSamples();
}

QAction* RoleBar::MakeAction(PaperRole role) {
  const std::u16string name = RoleName(role, strings_);
  const int key = static_cast<int>(role);
  auto* action = new QAction(QString::number(key) + ' ' + ToQString(name), this);
  action->setObjectName("role" + QString::number(key));
  const QString tip =
      ToQString(FillMessage(strings_.Text(text_id::kRoleWithKey), {name, FormatInteger(key)}));
  action->setToolTip(PlainTip(tip));
  connect(action, &QAction::triggered, this, [this, role] { emit RolePressed(role); });
  actions_.push_back(action);
  return action;
}

QWidget* RoleBar::MakeButton(QAction* action) {
  auto* button = new QToolButton(this);
  button->setDefaultAction(action);
  button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  button->setFocusPolicy(Qt::TabFocus);  // a click leaves the selection in the paper
  button->setAccessibleName(action->text());
  return button;
}

void RoleBar::SetCompact(bool isCompact) {
  if (isCompact == isCompact_) return;
  isCompact_ = isCompact;
  caption_->setVisible(!isCompact);
  signs_->setVisible(!isCompact);
  ShowSamples();
}

QSize RoleBar::SampleSize() const {
  return isCompact_ ? kSmallSample : kSample;
}

void RoleBar::ShowSamples() {
  const auto sample = [this](int role) {
    return SampleOf(static_cast<PaperRole>(role), SampleSize(), palette(), font(), devicePixelRatioF());
  };
  for (int role = kFirstRole; role <= kLastRole; ++role) actions_[role - kFirstRole]->setIcon(sample(role));
  notUnderstood_->setIcon(sample(0));
  for (QToolButton* button : findChildren<QToolButton*>()) button->setIconSize(SampleSize());
}

void RoleBar::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && notUnderstood_ != nullptr) ShowSamples();
}

}  // namespace quorvantis

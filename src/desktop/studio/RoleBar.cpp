// SPDX-License-Identifier: MIT
#include "desktop/studio/RoleBar.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "desktop/studio/RoleLook.h"
#include "learn/LearnedTexts.h"
#include "platform/TextNumbers.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <QAction>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>

namespace quorvantis {
namespace {

constexpr int kFirstRole = static_cast<int>(PaperRole::QuestionNumber);
constexpr int kLastRole = static_cast<int>(PaperRole::NotExam);
constexpr int kInARow = 4;
constexpr int kNarrowest = 64;  // pixels, on small screens; tooltips have the whole caption

}  // namespace

RoleBar::RoleBar(const StringTable& strings, QWidget* parent)
    : QWidget(parent), strings_(strings), notUnderstood_(new QToolButton(this)) {
  const QString caption = ToQString(strings.Text(text_id::kSaySelected));
  NameControl(this, "roleBar", caption);
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(2);
  grid->addWidget(new QLabel(caption, this), 0, 0);
  for (int role = kFirstRole; role <= kLastRole; ++role) {
    QAction* action = MakeAction(static_cast<PaperRole>(role));
    const int place = role - kFirstRole;
    grid->addWidget(MakeButton(action), place / kInARow, 1 + place % kInARow);
  }
  auto* takeBack = new QAction(ToQString(strings.Text(text_id::kTakeBackMark)), this);
  takeBack->setObjectName("takeBackMark");
  const QString tip = ToQString(
      FillMessage(strings.Text(text_id::kRoleWithKey), {strings.Text(text_id::kTakeBackMark), u"0"}));
  takeBack->setToolTip(PlainTip(tip));
  connect(takeBack, &QAction::triggered, this, &RoleBar::TakeBackPressed);
  actions_.push_back(takeBack);
  grid->addWidget(MakeButton(takeBack), 0, 1 + kInARow);
  notUnderstood_->setText(ToQString(RoleName(PaperRole::None, strings)));
  notUnderstood_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  notUnderstood_->setAutoRaise(true);
  notUnderstood_->setFocusPolicy(Qt::NoFocus);
  notUnderstood_->setAttribute(Qt::WA_TransparentForMouseEvents);
  grid->addWidget(notUnderstood_, 1, 1 + kInARow);
  auto* signs = new QLabel(ToQString(strings.Text(text_id::kSignWithMeaning)), this);
  signs->setTextFormat(Qt::PlainText);
  signs->setWordWrap(true);
  grid->addWidget(signs, 2, 0, 1, 2 + kInARow);
  grid->setColumnStretch(1 + kInARow, 1);
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
  button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  button->setMinimumWidth(kNarrowest);
  button->setAccessibleName(action->text());
  return button;
}

void RoleBar::ShowSamples() {
  const auto sample = [this](int role) {
    return SampleOf(static_cast<PaperRole>(role), palette(), font(), devicePixelRatioF());
  };
  for (int role = kFirstRole; role <= kLastRole; ++role) actions_[role - kFirstRole]->setIcon(sample(role));
  notUnderstood_->setIcon(sample(0));
  for (QToolButton* button : findChildren<QToolButton*>()) button->setIconSize(QSize(30, 20));
}

void RoleBar::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && notUnderstood_ != nullptr) ShowSamples();
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "desktop/Controls.h"

#include "desktop/Resources.h"

#include <QShortcut>

namespace quorvantis {
namespace {

constexpr QSize kLargeButton(90, 40);
constexpr QSize kSmallButton(73, 28);

QToolButton* MakeButton(QWidget* parent, const char* name, const QString& picture, const QString& tip) {
  auto* button = new QToolButton(parent);
  NameControl(button, name, tip);
  button->setIcon(Picture(picture));
  button->setToolTip(PlainTip(tip));
  button->setFocusPolicy(Qt::StrongFocus);
  return button;
}

}  // namespace

QString PlainTip(const QString& tip) {
  return Qt::mightBeRichText(tip) ? tip.toHtmlEscaped() : tip;
}

QToolButton* MakeLargeButton(QWidget* parent, const char* name, const QString& picture,
                             const QString& caption) {
  QToolButton* button = MakeButton(parent, name, "toolbar/" + picture, caption);
  button->setText(caption);
  button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  button->setIconSize({24, 24});
  button->setMinimumSize(kLargeButton);
  button->setAutoRaise(true);
  return button;
}

QToolButton* MakeSmallButton(QWidget* parent, const char* name, const QString& picture, const QString& tip) {
  QToolButton* button = MakeButton(parent, name, "small/" + picture, tip);
  button->setIconSize({20, 20});
  button->setFixedSize(kSmallButton);
  return button;
}

void AddShortcut(QAbstractButton* button, const QKeySequence& keys) {
  if (keys.isEmpty()) return;
  auto* shortcut = new QShortcut(keys, button);
  shortcut->setContext(Qt::WindowShortcut);
  QObject::connect(shortcut, &QShortcut::activated, button, [button] { button->click(); });
}

QLabel* MakeLabel(QWidget* parent, const char* name, const QString& caption) {
  auto* label = new QLabel(caption, parent);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  return label;
}

void NameControl(QWidget* control, const char* name, const QString& spokenName) {
  control->setObjectName(name);
  control->setAccessibleName(spokenName);
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "desktop/controls/Controls.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QShortcut>

namespace quorvantis {

QString PlainTip(const QString& tip) {
  return Qt::mightBeRichText(tip) ? tip.toHtmlEscaped() : tip;
}

void NameControl(QWidget* control, const char* name, const QString& spokenName) {
  control->setObjectName(name);
  control->setAccessibleName(spokenName);
}

void AddKeys(QWidget* control, const Keys& keys) {
  for (const QKeySequence& key : keys) {
    auto* shortcut = new QShortcut(key, control);
    shortcut->setContext(Qt::WindowShortcut);
    QObject::connect(shortcut, &QShortcut::activated, control, [control] { Act(control); });
  }
}

Keys KeysOf(const QWidget* control) {
  Keys keys;
  for (const auto* shortcut : control->findChildren<QShortcut*>(Qt::FindDirectChildrenOnly)) {
    keys << shortcut->key();
  }
  return keys;
}

void Act(QWidget* control) {
  QGuiApplication::inputMethod()->commit();
  if (auto* button = qobject_cast<QAbstractButton*>(control)) {
    button->click();
  } else {
    control->setFocus(Qt::ShortcutFocusReason);
  }
}

void SetUpButton(QAbstractButton* button, const char* name, const QString& spokenName, const Keys& keys,
                 std::function<void()> command) {
  NameControl(button, name, spokenName);
  AddKeys(button, keys);
  QObject::connect(button, &QAbstractButton::clicked, button, std::move(command));
}

QPushButton* MakePushButton(QWidget* parent, const char* name, const QString& caption) {
  auto* button = new QPushButton(caption, parent);
  NameControl(button, name, caption);
  button->setAutoDefault(false);
  return button;
}

QLabel* MakeLabel(QWidget* parent, const char* name, const QString& caption) {
  auto* label = new QLabel(caption, parent);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  return label;
}

void SetUpField(QWidget* field, const char* name, QLabel* label, const Keys& keys) {
  NameControl(field, name, label->text());
  label->setBuddy(field);
  AddKeys(field, keys);
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "desktop/controls/Controls.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QShortcut>

namespace quorvantis {
namespace {

/// Text still being composed in a field is committed before a command.
void Act(QWidget* control) {
  QGuiApplication::inputMethod()->commit();
  if (auto* button = qobject_cast<QAbstractButton*>(control)) {
    button->click();
  } else {
    control->setFocus(Qt::ShortcutFocusReason);
  }
}

}  // namespace

QString PlainTip(const QString& tip, const Keys& keys) {
  QStringList names;
  for (const QKeySequence& key : keys) names << key.toString(QKeySequence::NativeText);
  const QString all = names.isEmpty() ? tip : tip + " (" + names.join(", ") + ")";
  return Qt::mightBeRichText(all) ? all.toHtmlEscaped() : all;
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

void SetUpButton(QAbstractButton* button, const char* name, const QString& tip, const Keys& keys,
                 std::function<void()> command) {
  NameControl(button, name, tip);
  button->setToolTip(PlainTip(tip, keys));
  AddKeys(button, keys);
  QObject::connect(button, &QAbstractButton::clicked, button, std::move(command));
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
  label->setToolTip(PlainTip(label->text(), keys));
  AddKeys(field, keys);
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
// The names, keys and tooltips of the window's controls. A control is owned by its parent; `name` is its
// object name, the same in every language.
#pragma once

#include <QAbstractButton>
#include <QKeySequence>
#include <QLabel>
#include <QList>
#include <QPushButton>

#include <functional>

namespace quorvantis {

using Keys = QList<QKeySequence>;

/// A tooltip that shows `tip` as plain text, whatever a translation or a file name contains.
QString PlainTip(const QString& tip);

/// Names a control for style sheets and tests, and for screen readers.
void NameControl(QWidget* control, const char* name, const QString& spokenName);

/// Makes `keys` click a button or focus a field. They work in the whole window while the control is visible
/// and enabled, and are the same in every language, so captions need no mnemonics.
void AddKeys(QWidget* control, const Keys& keys);

/// The keys that AddKeys has given to `control`.
Keys KeysOf(const QWidget* control);

/// What the keys of a control do: they click a button and focus anything else. Text still being composed in
/// a field is committed first.
void Act(QWidget* control);

/// Names a button, gives it its keys, and runs `command` when it is clicked.
void SetUpButton(QAbstractButton* button, const char* name, const QString& spokenName, const Keys& keys,
                 std::function<void()> command);

/// A named push button that Enter presses only while it has the focus.
QPushButton* MakePushButton(QWidget* parent, const char* name, const QString& caption);

QLabel* MakeLabel(QWidget* parent, const char* name, const QString& caption);

/// Names `field` after its label, and gives it the keys that focus it.
void SetUpField(QWidget* field, const char* name, QLabel* label, const Keys& keys);

}  // namespace quorvantis

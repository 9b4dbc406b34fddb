// SPDX-License-Identifier: MIT
// The names, keys and tooltips of the window's controls. A control is owned by its parent; `name` is its
// object name, the same in every language.
#pragma once

#include <QAbstractButton>
#include <QKeySequence>
#include <QLabel>
#include <QList>

#include <functional>

namespace quorvantis {

using Keys = QList<QKeySequence>;

/// A tooltip that shows `tip` as plain text, whatever a translation or a file name contains, and the
/// shortcut.
QString PlainTip(const QString& tip, const Keys& keys = {});

/// Names a control for style sheets and tests, and for screen readers.
void NameControl(QWidget* control, const char* name, const QString& spokenName);

/// Makes `keys` click a button or focus a field. They work in the whole window while the control is visible
/// and enabled, and are the same in every language, so captions need no mnemonics.
void AddKeys(QWidget* control, const Keys& keys);

/// Names a button, gives it its tooltip and keys, and runs `command` when it is clicked.
void SetUpButton(QAbstractButton* button, const char* name, const QString& tip, const Keys& keys,
                 std::function<void()> command);

QLabel* MakeLabel(QWidget* parent, const char* name, const QString& caption);

/// Names `field` after its label, whose tooltip shows the keys that focus it.
void SetUpField(QWidget* field, const char* name, QLabel* label, const Keys& keys);

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
// What the window's controls have in common: names, keys and tooltips. A control belongs to its parent;
// `name` is its object name, the same in every language.
#pragma once

#include <QAbstractButton>
#include <QKeySequence>
#include <QLabel>
#include <QList>

#include <functional>

namespace quorvantis {

using Keys = QList<QKeySequence>;

/// A tooltip that shows `tip` as it is, whatever a translation or a file name holds, and the keys that do the
/// same.
QString PlainTip(const QString& tip, const Keys& keys = {});

/// Names a control for style sheets and tests, and for screen readers.
void NameControl(QWidget* control, const char* name, const QString& spokenName);

/// Makes `keys` click a button, or lead to a field. They work in the whole window while the control can be
/// seen and used. They are the same in every language, so that captions need no mark for them.
void AddKeys(QWidget* control, const Keys& keys);

/// Names a button, gives it its tooltip and keys, and runs `command` when it is clicked.
void SetUpButton(QAbstractButton* button, const char* name, const QString& tip, const Keys& keys,
                 std::function<void()> command);

QLabel* MakeLabel(QWidget* parent, const char* name, const QString& caption);

/// Names `field` after its label, whose tooltip tells the keys that lead to it.
void SetUpField(QWidget* field, const char* name, QLabel* label, const Keys& keys);

}  // namespace quorvantis

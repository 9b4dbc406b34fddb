// SPDX-License-Identifier: MIT
// Makers of the window's simple controls. A control belongs to its parent; `name` is its object name, the
// same in every language.
#pragma once

#include <QKeySequence>
#include <QLabel>
#include <QToolButton>

namespace quorvantis {

/// A tooltip that shows `tip` as it is, whatever a translation or a file name holds.
QString PlainTip(const QString& tip);

/// A large button with a picture (assets/toolbar) and a caption, which is also its tooltip.
QToolButton* MakeLargeButton(QWidget* parent, const char* name, const QString& picture,
                             const QString& caption);

/// A small button with a picture (assets/small); its tooltip is what screen readers say.
QToolButton* MakeSmallButton(QWidget* parent, const char* name, const QString& picture, const QString& tip);

/// Keys that click the button at once, unlike a shortcut of Qt's buttons; empty for none.
void AddShortcut(QAbstractButton* button, const QKeySequence& keys);

QLabel* MakeLabel(QWidget* parent, const char* name, const QString& caption);

/// Names a field or a list for style sheets and tests, and for screen readers.
void NameControl(QWidget* control, const char* name, const QString& spokenName);

}  // namespace quorvantis

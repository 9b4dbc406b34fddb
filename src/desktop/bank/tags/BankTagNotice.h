// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StringTable.h"

#include <QLabel>
#include <QPushButton>
#include <QWidget>

namespace quorvantis {

/// What there is to say about tags, below them, with a button for what can be done about it. Hidden when
/// there is nothing.
class BankTagNotice : public QWidget {
  Q_OBJECT

 public:
  /// `name` is that of the label, and with "Do" and "Close" behind it those of its buttons.
  BankTagNotice(const char* name, const StringTable& strings, QWidget* parent);

  /// `action` is the caption of the button, empty for none; `mayBeClosed` gives it a second one.
  void Say(const QString& text, const QString& action = {}, bool mayBeClosed = false);

 signals:
  void ActionWished();
  void Closed();

 private:
  QLabel* text_;
  QPushButton* action_;
  QPushButton* close_;
};

}  // namespace quorvantis

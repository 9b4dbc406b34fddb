// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StringTable.h"

#include <QLineEdit>
#include <QWidget>

namespace quorvantis {

/// The number that decides something random, which can be typed, and a button for another one. Begins with a
/// random seed that is easy to read out and to type again.
class SeedField : public QWidget {
  Q_OBJECT

 public:
  /// The names are those of the line and of the button. The field is focused in the line.
  SeedField(const StringTable& strings, const char* name, const char* buttonName, QWidget* parent);

  void Show(const QString& seed) { line_->setText(seed); }
  /// Another random seed.
  void Renew();
  QString Typed() const { return line_->text().trimmed(); }

 signals:
  /// By the user or by Show.
  void Changed();

 private:
  QLineEdit* line_;
};

}  // namespace quorvantis

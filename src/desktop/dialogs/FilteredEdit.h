// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

#include <string_view>

namespace quorvantis {

/// A field of one line that drops typed characters. What is pasted or dropped by mouse is not looked at, and
/// shortcuts that are characters ("Ctrl+V") count as typed.
class FilteredEdit : public QLineEdit {
  Q_OBJECT

 public:
  /// Whether a character may be typed into a field with that content.
  using Filter = bool (*)(char16_t typed, std::u16string_view content);

  FilteredEdit(Filter takes, QWidget* parent) : QLineEdit(parent), takes_(takes) {}

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;

 private:
  QString Taken(const QString& typed) const;

  Filter takes_;
};

}  // namespace quorvantis

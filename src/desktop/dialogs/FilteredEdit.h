// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

#include <string_view>

namespace quorvantis {

/// A field of one line that filters typed characters. Pasted and dropped text is not filtered, and shortcuts
/// with characters ("Ctrl+V") count as typed.
class FilteredEdit : public QLineEdit {
  Q_OBJECT

 public:
  /// Whether a character may be typed into a field with this content.
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

// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace quorvantis {

/// The text field that the user is working in, for the commands of a menu: a menu that is open may have the
/// keyboard, but does not take the field's place.
class FocusedField : public QObject {
  Q_OBJECT

 public:
  /// Looks at the fields in `area`, which must outlive this.
  explicit FocusedField(const QWidget& area);

  bool HasSelection() const;
  bool CanPaste() const;
  bool HasText() const;

  /// Do nothing without a field.
  void Cut();
  void Copy();
  void Paste();
  void SelectAll();

 private:
  void Follow(QWidget* focused);

  const QWidget& area_;
  QPointer<QWidget> field_;  ///< a QLineEdit or a QPlainTextEdit
};

}  // namespace quorvantis

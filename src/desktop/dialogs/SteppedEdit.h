// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

namespace quorvantis {

/// A field of one line for a whole number. While it is editable, Up, Down and the mouse wheel change it by
/// one.
class SteppedEdit : public QLineEdit {
  Q_OBJECT

 public:
  explicit SteppedEdit(QWidget* parent) : QLineEdit(parent) {}

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void Step(int steps);

  int wheel_ = 0;  ///< turned so far, in eighths of a degree; less than a step
};

}  // namespace quorvantis

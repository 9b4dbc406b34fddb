// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

namespace quorvantis {

/// A field of one line for a whole number that the keys Up and Down and the mouse wheel change by one, while
/// it is editable.
class SteppedEdit : public QLineEdit {
  Q_OBJECT

 public:
  explicit SteppedEdit(QWidget* parent) : QLineEdit(parent) {}

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void Step(int steps);

  int wheel_ = 0;  ///< turned so far, in eighths of a degree, less than a step
};

}  // namespace quorvantis

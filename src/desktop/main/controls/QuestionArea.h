// SPDX-License-Identifier: MIT
#pragma once

#include <QGroupBox>

namespace quorvantis {

/// The frame around the question. Its caption is on the top line of the frame in every style, because
/// controls follow closely below. The controls inside are not its children.
class QuestionArea : public QGroupBox {
  Q_OBJECT

 public:
  using QGroupBox::QGroupBox;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace quorvantis

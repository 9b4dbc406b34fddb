// SPDX-License-Identifier: MIT
#pragma once

#include "editor/QuestionForm.h"

#include <QCheckBox>

namespace quorvantis {

/// A check box with three states that does not change by itself: a click is reported by `clicked`, the editor
/// decides what comes next, and the box shows it. The box itself takes 15 pixels beside the caption, in every
/// style.
class StateBox : public QCheckBox {
  Q_OBJECT

 public:
  using QCheckBox::QCheckBox;

  void ShowState(CheckState state);

 protected:
  void nextCheckState() override {}
  bool hitButton(const QPoint& position) const override { return rect().contains(position); }
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintMark(QPainter& painter, const QRectF& box) const;
  void PaintBox(QPainter& painter, const QRectF& box) const;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>

namespace quorvantis {

/// A button of the toolbar: a picture with the caption beside it, flat until it has the mouse or the focus.
/// The caption always fits: it wraps and shrinks, and if the button extends beyond the window, only the
/// visible part is used.
class LargeButton : public QAbstractButton {
  Q_OBJECT

 public:
  LargeButton(const QString& caption, const QIcon& picture, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QRect VisiblePlace() const;
  void PaintSurface(QPainter& painter, const QRect& place) const;
  void PaintCaption(QPainter& painter, const QRect& place) const;
};

}  // namespace quorvantis

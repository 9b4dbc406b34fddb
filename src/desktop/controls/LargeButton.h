// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>

namespace quorvantis {

/// A button of the toolbar: a picture with the caption beside it, flat until the mouse or the keyboard comes
/// to it. The caption always has room: it wraps and shrinks, and of a button that reaches beyond the window
/// only the part inside is used.
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

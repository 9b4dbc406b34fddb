// SPDX-License-Identifier: MIT
#include "desktop/controls/StateBox.h"

#include "desktop/controls/ControlPainting.h"

#include <QPainter>
#include <QPolygonF>
#include <QStyle>

namespace quorvantis {
namespace {

constexpr int kBox = 13;
constexpr int kCaptionLeft = 15;

}  // namespace

void StateBox::ShowState(CheckState state) {
  setCheckState(state == CheckState::Off  ? Qt::Unchecked
                : state == CheckState::On ? Qt::Checked
                                          : Qt::PartiallyChecked);
}

/// A tick for on, a bar for grey.
void StateBox::PaintMark(QPainter& painter, const QRectF& box) const {
  painter.setPen(
      QPen(palette().color(QPalette::HighlightedText), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const QPointF corner = box.topLeft();
  if (checkState() == Qt::PartiallyChecked) {
    painter.drawLine(corner + QPointF(3.5, 6.5), corner + QPointF(9.5, 6.5));
  } else {
    painter.drawPolyline(
        QPolygonF{{corner + QPointF(3, 6.8)}, {corner + QPointF(5.5, 9.3)}, {corner + QPointF(10, 4)}});
  }
}

void StateBox::PaintBox(QPainter& painter, const QRectF& box) const {
  constexpr qreal kRadius = 2;
  const bool marked = checkState() != Qt::Unchecked;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().color(marked ? QPalette::Highlight : QPalette::Base));
  painter.drawRoundedRect(box, kRadius, kRadius);
  if (underMouse()) PaintTint(painter, box, palette(), isDown() ? kPressedTint : kHoverTint);
  if (marked) PaintMark(painter, box);
  if (!marked) PaintEdge(painter, box, palette(), kRadius);
}

void StateBox::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const auto onScreen = [this](const QRect& place) {
    return QStyle::visualRect(layoutDirection(), rect(), place);
  };
  PaintBox(painter, onScreen({0, (height() - kBox) / 2, kBox, kBox}));
  painter.setPen(palette().color(QPalette::WindowText));
  const Qt::Alignment alignment = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft);
  painter.drawText(onScreen(rect().adjusted(kCaptionLeft, 0, 0, 0)),
                   static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextDontClip, text());
  if (hasFocus()) PaintFocusFrame(painter, rect(), palette());
}

}  // namespace quorvantis

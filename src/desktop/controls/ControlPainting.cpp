// SPDX-License-Identifier: MIT
#include "desktop/controls/ControlPainting.h"

namespace quorvantis {
namespace {

QColor EdgeColour(const QPalette& colours) {
  QColor colour = colours.color(QPalette::WindowText);
  colour.setAlphaF(0.35F);
  return colour;
}

void PaintLine(QPainter& painter, const QRectF& place, const QPen& pen, qreal radius) {
  const qreal inset = pen.widthF() / 2;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(pen);
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(place.adjusted(inset, inset, -inset, -inset), radius, radius);
  painter.restore();
}

}  // namespace

void PaintTint(QPainter& painter, const QRectF& place, const QPalette& colours, qreal opacity) {
  QColor tint = colours.color(QPalette::Highlight);
  tint.setAlphaF(static_cast<float>(opacity));
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(tint);
  painter.drawRoundedRect(place, kCornerRadius, kCornerRadius);
  painter.restore();
}

void PaintFocusFrame(QPainter& painter, const QRectF& place, const QPalette& colours) {
  PaintLine(painter, place, QPen(colours.color(QPalette::Highlight), 2), kCornerRadius);
}

void PaintEdge(QPainter& painter, const QRectF& place, const QPalette& colours, qreal radius) {
  PaintLine(painter, place, QPen(EdgeColour(colours), 1), radius);
}

void PaintFieldEdge(QPainter& painter, const QWidget& field) {
  constexpr qreal kRadius = 2;
  const bool active = field.hasFocus();
  const QColor colour = active ? field.palette().color(QPalette::Highlight) : EdgeColour(field.palette());
  PaintLine(painter, field.rect(), QPen(colour, active ? 2 : 1), kRadius);
}

}  // namespace quorvantis

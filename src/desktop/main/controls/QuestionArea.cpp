// SPDX-License-Identifier: MIT
#include "desktop/main/controls/QuestionArea.h"

#include "desktop/controls/ControlPainting.h"

#include <QPainter>
#include <QStyle>

namespace quorvantis {
namespace {

constexpr int kCaptionLeft = 12;
constexpr int kCaptionGap = 4;  // between caption and line

}  // namespace

void QuestionArea::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QSize size = fontMetrics().size(Qt::TextSingleLine, title());
  const QRect caption = QStyle::visualRect(layoutDirection(), rect(), QRect({kCaptionLeft, 0}, size));
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(caption, Qt::AlignCenter | Qt::TextDontClip, title());

  const QRect gap = caption.adjusted(-kCaptionGap, 0, kCaptionGap, 0);
  painter.setClipRegion(QRegion(rect()) - (title().isEmpty() ? QRect() : gap));
  PaintEdge(painter, rect().adjusted(0, size.height() / 2, 0, 0), palette());
}

}  // namespace quorvantis

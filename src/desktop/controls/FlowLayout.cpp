// SPDX-License-Identifier: MIT
#include "desktop/controls/FlowLayout.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace quorvantis {

FlowLayout::FlowLayout(int spacing, QWidget* parent) : QLayout(parent) {
  setContentsMargins(0, 0, 0, 0);
  setSpacing(spacing);
}

FlowLayout::~FlowLayout() {
  qDeleteAll(items_);
}

QLayoutItem* FlowLayout::takeAt(int index) {
  return index >= 0 && index < items_.size() ? items_.takeAt(index) : nullptr;
}

QList<QRect> FlowLayout::Places(const QRect& place) const {
  QList<QRect> places;
  int x = place.left();
  int y = place.top();
  qsizetype rowBegin = 0;
  for (const QLayoutItem* item : items_) {
    if (item->isEmpty()) {
      places.push_back({});
      continue;
    }
    const QSize size = item->sizeHint().boundedTo({std::max(place.width(), 1), QWIDGETSIZE_MAX});
    if (x > place.left() && x + size.width() > place.right() + 1) {
      x = place.left();
      y += EndRow(places, rowBegin) + spacing();
      rowBegin = places.size();
    }
    places.push_back({QPoint(x, y), size});
    x += size.width() + spacing();
  }
  EndRow(places, rowBegin);
  return places;
}

/// Moves the items of the last row to its middle, and returns its height.
int FlowLayout::EndRow(QList<QRect>& places, qsizetype rowBegin) {
  int height = 0;
  for (qsizetype i = rowBegin; i < places.size(); ++i) height = std::max(height, places[i].height());
  for (qsizetype i = rowBegin; i < places.size(); ++i) {
    if (!places[i].isEmpty()) places[i].translate(0, (height - places[i].height()) / 2);
  }
  return height;
}

int FlowLayout::heightForWidth(int width) const {
  const QMargins around = Margins();
  int bottom = 0;
  for (const QRect& place : Places({0, 0, width - around.left() - around.right(), 0}))
    bottom = std::max(bottom, place.y() + place.height());
  return bottom + around.top() + around.bottom();
}

QSize FlowLayout::minimumSize() const {
  QSize size;
  for (const QLayoutItem* item : items_) size = size.expandedTo(item->minimumSize());
  return size.grownBy(Margins());
}

/// All in one row.
QSize FlowLayout::sizeHint() const {
  QSize size;
  for (const QLayoutItem* item : items_) {
    if (item->isEmpty()) continue;
    size.setHeight(std::max(size.height(), item->sizeHint().height()));
    size.setWidth(size.width() + (size.width() > 0 ? spacing() : 0) + item->sizeHint().width());
  }
  return size.grownBy(Margins());
}

void FlowLayout::setGeometry(const QRect& place) {
  QLayout::setGeometry(place);
  const Qt::LayoutDirection direction =
      parentWidget() != nullptr ? parentWidget()->layoutDirection() : Qt::LeftToRight;
  const QRect inner = place.marginsRemoved(Margins());
  const QList<QRect> places = Places(inner);
  for (int i = 0; i < count(); ++i) {
    if (!places[i].isEmpty()) items_[i]->setGeometry(QStyle::visualRect(direction, inner, places[i]));
  }
}

}  // namespace quorvantis

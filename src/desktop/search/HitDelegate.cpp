// SPDX-License-Identifier: MIT
#include "desktop/search/HitDelegate.h"

#include "desktop/search/HitRoles.h"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>

#include <utility>

namespace quorvantis {
namespace {

QTextLayout::FormatRange Bold(int start, int length) {
  QTextLayout::FormatRange range;
  range.start = start;
  range.length = length;
  range.format.setFontWeight(QFont::Bold);
  return range;
}

/// Lays the text out on one line, at least as wide as the cell, so that right-to-left text begins at the
/// right.
QTextLine LayOut(QTextLayout& layout, qreal width) {
  QTextOption option;
  option.setWrapMode(QTextOption::NoWrap);
  const bool isRightToLeft = layout.text().isRightToLeft();
  option.setTextDirection(isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
  option.setAlignment(isRightToLeft ? Qt::AlignRight : Qt::AlignLeft);
  layout.setTextOption(option);
  layout.beginLayout();
  QTextLine line = layout.createLine();
  line.setLineWidth(width);
  if (line.naturalTextWidth() > width) line.setLineWidth(line.naturalTextWidth());
  layout.endLayout();
  return line;
}

QPalette::ColorGroup GroupOf(QStyle::State state) {
  if (!state.testFlag(QStyle::State_Enabled)) return QPalette::Disabled;
  return state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
}

}  // namespace

void HitDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  if (index.data(kDimmedRole).toBool()) option->state &= ~QStyle::State_Enabled;
}

void HitDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
  const QVariant length = index.data(kHitLengthRole);
  if (!length.isValid()) return QStyledItemDelegate::paint(painter, option, index);
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  const QString text = std::exchange(cell.text, {});
  const QStyle* style = cell.widget != nullptr ? cell.widget->style() : QApplication::style();
  style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
  const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, &cell, cell.widget) + 1;
  const QRect room = cell.rect.adjusted(margin, 0, -margin, 0);

  QTextLayout layout(text, cell.font);
  layout.setFormats({Bold(index.data(kHitStartRole).toInt(), length.toInt())});
  const QTextLine line = LayOut(layout, room.width());
  const qreal overhang = text.isRightToLeft() ? line.width() - room.width() : 0;
  const bool isSelected = cell.state.testFlag(QStyle::State_Selected);
  painter->save();
  painter->setClipRect(room);
  painter->setPen(
      cell.palette.color(GroupOf(cell.state), isSelected ? QPalette::HighlightedText : QPalette::Text));
  layout.draw(painter, {room.x() - overhang, room.y() + (room.height() - line.height()) / 2});
  painter->restore();
}

}  // namespace quorvantis

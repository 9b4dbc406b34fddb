// SPDX-License-Identifier: MIT
#include "desktop/bank/hits/BankHitDelegate.h"

#include "desktop/bank/hits/BankHitsModel.h"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>

#include <utility>

namespace quorvantis {
namespace {

constexpr int kLinesOfExcerpt = 2;
constexpr int kMargin = 4;  // pixels

QList<QTextLayout::FormatRange> MarkFormats(const std::vector<TextSpan>& marks) {
  QTextCharFormat format;
  format.setFontWeight(QFont::Bold);
  format.setFontUnderline(true);
  QList<QTextLayout::FormatRange> formats;
  for (const TextSpan& mark : marks)
    formats.append({static_cast<int>(mark.begin), static_cast<int>(mark.Size()), format});
  return formats;
}

void DrawExcerpt(QPainter& painter, const QRect& place, const QFont& font, const QString& text,
                 const std::vector<TextSpan>& marks) {
  QTextLayout layout(text, font);
  QTextOption direction(Qt::AlignLeft);
  direction.setTextDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
  if (text.isRightToLeft()) direction.setAlignment(Qt::AlignRight);
  layout.setTextOption(direction);
  layout.setFormats(MarkFormats(marks));
  layout.beginLayout();
  qreal top = 0;
  for (int i = 0; i < kLinesOfExcerpt; ++i) {
    QTextLine line = layout.createLine();
    if (!line.isValid()) break;
    line.setLineWidth(place.width());
    line.setPosition({0, top});
    top += line.height();
  }
  layout.endLayout();
  layout.draw(&painter, place.topLeft());
}

/// Drawings may have no background, and are made for paper.
void DrawPicture(QPainter& painter, const QRect& place, const QImage& picture) {
  if (picture.isNull()) return;
  const QSize size = picture.size().scaled(place.size(), Qt::KeepAspectRatio).expandedTo({1, 1});
  const QRect shown = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, place);
  painter.fillRect(shown, Qt::white);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(shown, picture);
}

/// Takes the place of the picture from `inner`, at the end of the row.
QRect TakePicturePlace(QRect& inner, Qt::LayoutDirection direction) {
  const int side = inner.height();
  const QRect picture(inner.right() - side + 1, inner.top(), side, side);
  const QRect texts = inner.adjusted(0, 0, -side - kMargin, 0);
  const QRect whole = std::exchange(inner, QStyle::visualRect(direction, inner, texts));
  return QStyle::visualRect(direction, whole, picture);
}

}  // namespace

void BankHitDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const {
  QStyleOptionViewItem row = option;
  initStyleOption(&row, index);
  row.text.clear();  // the style draws only what lies behind it
  const QWidget* view = option.widget;
  const QStyle* style = view != nullptr ? view->style() : QApplication::style();
  style->drawControl(QStyle::CE_ItemViewItem, &row, painter, view);
  const bool isSelected = row.state.testFlag(QStyle::State_Selected);
  const auto group = row.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
  painter->save();
  painter->setClipRect(row.rect);
  painter->setPen(row.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text));
  QRect inner = row.rect.adjusted(kMargin, kMargin, -kMargin, -kMargin);
  if (index.data(BankHitsModel::HasPictureRole).toBool()) {
    const QRect place = TakePicturePlace(inner, row.direction);
    DrawPicture(*painter, place, index.data(BankHitsModel::PictureRole).value<QImage>());
  }
  const QFontMetrics metrics(row.font);
  const QString heading =
      metrics.elidedText(index.data(BankHitsModel::HeadingRole).toString(), Qt::ElideMiddle, inner.width());
  QFont headingFont = row.font;
  headingFont.setItalic(true);
  painter->setFont(headingFont);
  painter->drawText(inner, Qt::AlignTop | Qt::AlignLeading, heading);
  DrawExcerpt(*painter, inner.adjusted(0, metrics.lineSpacing(), 0, 0), row.font,
              index.data(BankHitsModel::ExcerptRole).toString(),
              MarksFromVariant(index.data(BankHitsModel::MarksRole)));
  painter->restore();
}

QSize BankHitDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const QFontMetrics metrics(option.font);
  return {QStyledItemDelegate::sizeHint(option, index).width(),
          (1 + kLinesOfExcerpt) * metrics.lineSpacing() + 2 * kMargin};
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace quorvantis {

/// Draws a row of a BankHitsModel: where the question is, and below it two lines of its text with the words
/// that were looked for underlined and bold; at the end the picture of the question. Each text runs in its
/// own direction.
class BankHitDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace quorvantis

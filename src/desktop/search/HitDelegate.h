// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace quorvantis {

/// Paints the lines of hits (see HitRoles.h), with the hit in bold and each line in its own direction. Cells
/// without a hit look as usual.
class HitDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

}  // namespace quorvantis

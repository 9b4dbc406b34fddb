// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace quorvantis {

/// Shows each cell of a table in the direction of its own text, whatever the direction of the window: an
/// English question in an Arabic window begins at the left, with its question mark at the right end.
class OwnDirection : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

}  // namespace quorvantis

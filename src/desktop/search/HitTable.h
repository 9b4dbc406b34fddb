// SPDX-License-Identifier: MIT
#pragma once

#include <QTreeView>

namespace quorvantis {

/// A list with columns for hits, a row at a time. The last columns share the room that is left.
class HitTable : public QTreeView {
  Q_OBJECT

 public:
  /// The columns from `firstWide` on are wide. `list` must outlive the table.
  HitTable(QAbstractItemModel& list, int firstWide, QWidget* parent);

 signals:
  /// Enter or Return was pressed on a row, or it was double-clicked.
  void RowChosen(const QModelIndex& row);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace quorvantis

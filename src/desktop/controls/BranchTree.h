// SPDX-License-Identifier: MIT
#pragma once

#include <QTreeView>

namespace quorvantis {

/// A tree of two levels that is always unfolded: branches across the whole width, and rows with columns, of
/// which the first takes what the others leave.
class BranchTree : public QTreeView {
  Q_OBJECT

 public:
  /// `model` must outlive the tree.
  BranchTree(QAbstractItemModel& model, QWidget* parent);

  /// Unfolds the tree; call when the model shows something else.
  void Unfold();

 signals:
  /// Enter or Return was pressed on a row, or it was clicked.
  void RowChosen(const QModelIndex& row);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace quorvantis

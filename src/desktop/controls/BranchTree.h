// SPDX-License-Identifier: MIT
#pragma once

#include <QTreeView>

namespace quorvantis {

/// The tree of findings, always unfolded.
class FindingTree : public QTreeView {
  Q_OBJECT

 public:
  /// `model` must outlive the tree.
  FindingTree(QAbstractItemModel& model, QWidget* parent);

  /// Unfolds the tree; call when other findings are shown.
  void Unfold();

 signals:
  /// Enter or Return was pressed on a row, or it was clicked.
  void RowChosen(const QModelIndex& row);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "desktop/controls/BranchTree.h"

#include <QHeaderView>
#include <QKeyEvent>

namespace quorvantis {

BranchTree::BranchTree(QAbstractItemModel& model, QWidget* parent) : QTreeView(parent) {
  setModel(&model);
  setItemsExpandable(false);
  setRootIsDecorated(false);
  setAllColumnsShowFocus(true);
  setWordWrap(true);
  setEditTriggers(NoEditTriggers);
  header()->setStretchLastSection(false);
  header()->setSectionResizeMode(0, QHeaderView::Stretch);
  for (int column = 1; column < model.columnCount(); ++column)
    header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
  header()->setSectionsMovable(false);
  connect(this, &QTreeView::clicked, this, &BranchTree::RowChosen);
}

void BranchTree::Unfold() {
  expandAll();
  for (int row = 0; row < model()->rowCount(); ++row) setFirstColumnSpanned(row, {}, true);
}

/// Enter must not reach the dialog, which would press a button.
void BranchTree::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isEnter && currentIndex().isValid()) return emit RowChosen(currentIndex());
  QTreeView::keyPressEvent(event);
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "desktop/check/FindingTree.h"

#include <QHeaderView>
#include <QKeyEvent>

namespace quorvantis {

FindingTree::FindingTree(QAbstractItemModel& model, QWidget* parent) : QTreeView(parent) {
  setModel(&model);
  setItemsExpandable(false);
  setRootIsDecorated(false);
  setAllColumnsShowFocus(true);
  setWordWrap(true);
  setEditTriggers(NoEditTriggers);
  header()->setStretchLastSection(false);
  header()->setSectionResizeMode(0, QHeaderView::Stretch);
  header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  header()->setSectionsMovable(false);
  connect(this, &QTreeView::clicked, this, &FindingTree::RowChosen);
}

void FindingTree::Unfold() {
  expandAll();
  for (int row = 0; row < model()->rowCount(); ++row) setFirstColumnSpanned(row, {}, true);
}

/// Enter must not reach the dialog, which would press a button.
void FindingTree::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isEnter && currentIndex().isValid()) return emit RowChosen(currentIndex());
  QTreeView::keyPressEvent(event);
}

}  // namespace quorvantis

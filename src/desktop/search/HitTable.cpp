// SPDX-License-Identifier: MIT
#include "desktop/search/HitTable.h"

#include "desktop/search/HitDelegate.h"

#include <QHeaderView>
#include <QKeyEvent>

namespace quorvantis {
namespace {

constexpr int kQuestionWidth = 80;  // pixels
constexpr int kFieldWidth = 120;

}  // namespace

HitTable::HitTable(QAbstractItemModel& list, int firstWide, QWidget* parent) : QTreeView(parent) {
  setModel(&list);
  setItemDelegate(new HitDelegate(this));
  setRootIsDecorated(false);
  setItemsExpandable(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setEditTriggers(NoEditTriggers);
  header()->setStretchLastSection(false);
  for (int column = firstWide; column < list.columnCount(); ++column)
    header()->setSectionResizeMode(column, QHeaderView::Stretch);
  header()->setSectionsMovable(false);
  setColumnWidth(0, kQuestionWidth);
  setColumnWidth(1, kFieldWidth);
}

/// Enter must not reach a dialog, which would press a button. A blank changes the tick of a row, in whichever
/// column the keyboard is.
void HitTable::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isEnter && currentIndex().isValid()) return emit RowChosen(currentIndex());
  if (event->key() == Qt::Key_Space && currentIndex().isValid())
    setCurrentIndex(currentIndex().siblingAtColumn(0));
  QTreeView::keyPressEvent(event);
}

}  // namespace quorvantis

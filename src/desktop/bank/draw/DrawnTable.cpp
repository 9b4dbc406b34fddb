// SPDX-License-Identifier: MIT
#include "desktop/bank/draw/DrawnTable.h"

#include "desktop/bank/draw/DrawnModel.h"
#include "desktop/controls/OwnDirection.h"

#include <QHeaderView>
#include <QKeyEvent>

namespace quorvantis {
namespace {

constexpr int kLinesOfRow = 2;
constexpr int kRowGap = 6;  // pixels

bool IsOwnKey(const QKeyEvent& key) {
  const bool isArrow = key.key() == Qt::Key_Up || key.key() == Qt::Key_Down;
  return key.key() == Qt::Key_Delete || (key.key() == Qt::Key_R && key.modifiers() == Qt::ControlModifier) ||
         (isArrow && key.modifiers() == Qt::AltModifier);
}

}  // namespace

DrawnTable::DrawnTable(QWidget* parent) : QTableView(parent) {
  // The others are the words of the program.
  setItemDelegateForColumn(DrawnModel::kQuestion, new OwnDirection(this));
  setSelectionBehavior(SelectRows);
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setWordWrap(true);
  setAlternatingRowColors(true);
  setTabKeyNavigation(false);
  setCornerButtonEnabled(false);
  setHorizontalScrollMode(ScrollPerPixel);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(kLinesOfRow * fontMetrics().lineSpacing() + kRowGap);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setStretchLastSection(true);
  connect(this, &QTableView::doubleClicked, this, &DrawnTable::PageWished);
}

/// Not by selectRow, which does nothing in a mirrored table.
void DrawnTable::Choose(int row) {
  setCurrentIndex(model()->index(row, DrawnModel::kQuestion));
}

/// Shortcuts of the main window would take these keys first.
bool DrawnTable::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && IsOwnKey(static_cast<QKeyEvent&>(*event))) {
    event->accept();
    return true;
  }
  return QTableView::event(event);
}

void DrawnTable::keyPressEvent(QKeyEvent* event) {
  if (!Obey(*event)) QTableView::keyPressEvent(event);
}

bool DrawnTable::Obey(const QKeyEvent& key) {
  if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) {
    emit PageWished();
    return true;
  }
  if (!IsOwnKey(key)) return false;
  switch (key.key()) {
    case Qt::Key_Delete:
      emit RemoveWished();
      break;
    case Qt::Key_Up:
      emit MoveWished(-1);
      break;
    case Qt::Key_Down:
      emit MoveWished(1);
      break;
    default:
      emit ExchangeWished();
      break;
  }
  return true;
}

}  // namespace quorvantis

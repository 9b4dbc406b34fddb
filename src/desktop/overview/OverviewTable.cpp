// SPDX-License-Identifier: MIT
#include "desktop/overview/OverviewTable.h"

#include <QDrag>
#include <QDropEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMimeData>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

namespace quorvantis {
namespace {

constexpr const char* kDraggedRows = "application/x-quorvantis-rows";  // means nothing to other windows
constexpr int kRowGap = 6;                                             // pixels
constexpr int kDropLine = 2;

/// In mirrored windows, a text of the other direction keeps its own, with its full stop at its end.
class CellText : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QString displayText(const QVariant& value, const QLocale& locale) const override {
    const QString text = QStyledItemDelegate::displayText(value, locale);
    return QGuiApplication::isRightToLeft() ? QChar(0x2068) + text + QChar(0x2069) : text;
  }
};

}  // namespace

OverviewTable::OverviewTable(QWidget* parent) : QTableView(parent) {
  setItemDelegate(new CellText(this));
  setSelectionBehavior(SelectRows);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(NoEditTriggers);
  setWordWrap(false);
  setShowGrid(false);
  setAlternatingRowColors(true);
  setTabKeyNavigation(false);
  setHorizontalScrollMode(ScrollPerPixel);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowGap);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setStretchLastSection(true);
  setDragEnabled(true);
  setAcceptDrops(true);
  setDragDropMode(DragDrop);
  setDropIndicatorShown(false);  // it has its own
}

std::vector<int> OverviewTable::SelectedRows() const {
  std::vector<int> rows;
  for (const QModelIndex& index : selectionModel()->selectedRows()) rows.push_back(index.row());
  std::ranges::sort(rows);
  return rows;
}

void OverviewTable::startDrag(Qt::DropActions) {
  if (SelectedRows().empty()) return;
  auto* drag = new QDrag(this);
  auto* rows = new QMimeData;
  rows->setData(kDraggedRows, {});
  drag->setMimeData(rows);
  drag->exec(Qt::MoveAction);
  ShowDropAt(-1);
}

int OverviewTable::RowAtDrop(const QPoint& position) const {
  const int row = rowAt(position.y());
  if (row < 0) return model()->rowCount();
  return position.y() < rowViewportPosition(row) + rowHeight(row) / 2 ? row : row + 1;
}

void OverviewTable::ShowDropAt(int row) {
  if (dropRow_ == row) return;
  dropRow_ = row;
  viewport()->update();
}

void OverviewTable::dragEnterEvent(QDragEnterEvent* event) {
  if (QuestionDrag::Of(*event) != nullptr) {
    setState(DraggingState);
    event->acceptProposedAction();
    return;
  }
  if (event->source() != this || !event->mimeData()->hasFormat(kDraggedRows)) return;
  setState(DraggingState);
  event->acceptProposedAction();
}

/// The base class scrolls near the edges. It sees no place to drop there, but this class does.
void OverviewTable::dragMoveEvent(QDragMoveEvent* event) {
  QTableView::dragMoveEvent(event);
  const bool isQuestion = QuestionDrag::Of(*event) != nullptr;
  if (event->source() != this && !isQuestion) return event->ignore();
  ShowDropAt(RowAtDrop(event->position().toPoint()));
  event->setDropAction(isQuestion ? Qt::CopyAction : Qt::MoveAction);
  event->accept();
}

void OverviewTable::dragLeaveEvent(QDragLeaveEvent* event) {
  ShowDropAt(-1);
  QTableView::dragLeaveEvent(event);
}

void OverviewTable::dropEvent(QDropEvent* event) {
  const QuestionDrag* const question = QuestionDrag::Of(*event);
  if (event->source() != this && question == nullptr) return event->ignore();
  const int row = RowAtDrop(event->position().toPoint());
  ShowDropAt(-1);
  stopAutoScroll();
  setState(NoState);
  event->acceptProposedAction();
  if (question == nullptr) return emit RowsDropped(row);
  QMetaObject::invokeMethod(
      this, [this, row, insert = question->Inserts()] { emit QuestionDropped(row, insert); },
      Qt::QueuedConnection);
}

void OverviewTable::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  if (dropRow_ < 0) return;
  const int last = model()->rowCount() - 1;
  const int y = dropRow_ <= last ? rowViewportPosition(dropRow_)
                : last >= 0      ? rowViewportPosition(last) + rowHeight(last)
                                 : 0;
  QPainter painter(viewport());
  painter.fillRect(0, std::max(y - kDropLine / 2, 0), viewport()->width(), kDropLine,
                   palette().color(QPalette::Highlight));
}

}  // namespace quorvantis

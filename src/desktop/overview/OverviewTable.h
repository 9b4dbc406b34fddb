// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/controls/QuestionDrag.h"

#include <QTableView>

namespace quorvantis {

/// The table of an overview. Rows can be selected and dragged; it does not move them itself, but says where
/// they were dropped.
class OverviewTable : public QTableView {
  Q_OBJECT

 public:
  explicit OverviewTable(QWidget* parent);

  /// The selected rows, ascending.
  std::vector<int> SelectedRows() const;

 signals:
  /// The selected rows have been dropped in front of `row`; the number of rows stands for the end.
  void RowsDropped(int row);
  /// A question of another exam has been dropped there. Comes when the drag has ended.
  void QuestionDropped(int row, const QuestionDrag::Insert& insert);

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  /// Starts a drag with every selected row, whichever is pressed.
  void startDrag(Qt::DropActions actions) override;

 private:
  int RowAtDrop(const QPoint& position) const;
  void ShowDropAt(int row);

  int dropRow_ = -1;  ///< where a line shows that rows would be dropped; -1 for nowhere
};

}  // namespace quorvantis

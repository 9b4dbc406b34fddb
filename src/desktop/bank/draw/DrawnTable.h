// SPDX-License-Identifier: MIT
#pragma once

#include <QTableView>

namespace quorvantis {

/// The table of drawn questions, with keys for its rows. The keys only ask; the table changes nothing.
class DrawnTable : public QTableView {
  Q_OBJECT

 public:
  explicit DrawnTable(QWidget* parent);

  /// -1 if there is none.
  int Row() const { return currentIndex().row(); }
  void Choose(int row);

 signals:
  void ExchangeWished();
  void RemoveWished();
  void MoveWished(int by);
  void PageWished();

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool Obey(const QKeyEvent& key);
};

}  // namespace quorvantis

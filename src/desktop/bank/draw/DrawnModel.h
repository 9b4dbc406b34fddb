// SPDX-License-Identifier: MIT
#pragma once

#include "bank/search/DrawnList.h"
#include "platform/StringTable.h"

#include <QAbstractTableModel>
#include <QStringList>

#include <vector>

namespace quorvantis {

/// The drawn questions: what each asks, where it is taken from, and why it came.
class DrawnModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { kQuestion, kFrom, kWhy, kColumns };

  /// `strings` must outlive the model.
  DrawnModel(const StringTable& strings, QObject* parent) : QAbstractTableModel(parent), strings_(strings) {}

  void Show(const DrawnList& list);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QString WhyOf(const DrawnList& list, const DrawnRow& row) const;

  const StringTable& strings_;
  std::vector<QStringList> rows_;  ///< a text for each column, and the path of the exam
};

}  // namespace quorvantis

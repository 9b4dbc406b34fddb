// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamPaper.h"
#include "versions/plan/VersionPlan.h"

#include <QAbstractTableModel>

namespace quorvantis {

/// A plan as a table: a row for each place, a column for each version, in each cell the number of the
/// question in the exam and the letters of its key.
class PlanModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  /// `exam` must outlive the model.
  PlanModel(const ExamPaper& exam, QObject* parent) : QAbstractTableModel(parent), exam_(exam) {}

  void Show(VersionPlan plan);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  const ExamPaper& exam_;
  VersionPlan plan_;
};

}  // namespace quorvantis

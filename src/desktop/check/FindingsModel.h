// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/check/ExamChecker.h"
#include "platform/StringTable.h"

#include <QStandardItemModel>
#include <QWidget>

#include <optional>

namespace quorvantis {

/// The findings of an exam as a tree: a branch for each question, and one for the exam as a whole.
class FindingsModel : public QStandardItemModel {
  Q_OBJECT

 public:
  enum Column { kFinding, kSeverity, kColumns };

  /// Both must outlive the model; `look` gives the signs their style.
  FindingsModel(const StringTable& strings, const QWidget& look, QObject* parent);

  /// Shows the findings of `checker`, those that are ignored only on demand.
  void Show(const ExamChecker& checker, bool withIgnored);

  /// The index of the finding in the checker, nothing for a branch.
  static std::optional<std::size_t> FindingOf(const QModelIndex& index);
  /// The question of a finding or a branch, 0 for the exam as a whole.
  static int QuestionOf(const QModelIndex& index);
  /// The row of a finding; invalid if it is not shown.
  QModelIndex RowOf(std::size_t finding) const;

 private:
  QStandardItem* AddBranch(const ExamChecker& checker, int question);
  void AddRow(QStandardItem& branch, const ShownFinding& shown, std::size_t index);

  const StringTable& strings_;
  const QWidget& look_;
};

}  // namespace quorvantis

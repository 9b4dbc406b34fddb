// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/bank/asked/AskedBefore.h"

#include <QStandardItemModel>

#include <filesystem>

namespace quorvantis {

/// The older exams that have questions of an exam, those with the most first, below a row for all of them.
class SharedExamsModel : public QStandardItemModel {
  Q_OBJECT

 public:
  enum Column { kExam, kExamDay, kSame, kVariants, kShare, kExamColumns };

  /// `strings` must outlive the model.
  SharedExamsModel(const StringTable& strings, QObject* parent);

  void Show(const AskedBefore& asked);

  /// The file of a row's exam; empty for the row of all.
  static std::filesystem::path ExamOf(const QModelIndex& index);
  /// The row of an exam, 0 if it has none.
  int RowOf(const std::filesystem::path& exam) const;

 private:
  void AddExam(const BankShare& share, const QString& name);

  const StringTable& strings_;
};

}  // namespace quorvantis

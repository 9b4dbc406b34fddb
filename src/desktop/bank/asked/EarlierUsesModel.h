// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/bank/asked/AskedBefore.h"

#include <QStandardItemModel>

#include <cstddef>
#include <filesystem>
#include <optional>

namespace quorvantis {

/// The questions of an exam that were asked before: a branch for each, with a row for each earlier use.
class EarlierUsesModel : public QStandardItemModel {
  Q_OBJECT

 public:
  enum Column { kWhere, kDay, kHow, kUseColumns };

  /// `strings` must outlive the model.
  EarlierUsesModel(const StringTable& strings, QObject* parent);

  /// Shows the uses in one older exam; in all of them if `onlyIn` is empty.
  void Show(const AskedBefore& asked, const std::filesystem::path& onlyIn);

  /// The place of the question in the exam, from 0 on, of a branch or a row.
  static std::size_t QuestionOf(const QModelIndex& index);
  /// The place of a row's use among those of its question; nothing for a branch.
  static std::optional<std::size_t> UseOf(const QModelIndex& index);

 private:
  QStandardItem* AddBranch(const QString& caption, std::size_t question);
  void AddUse(QStandardItem& branch, const BankUse& use, std::size_t place);

  const StringTable& strings_;
  BankExamNames names_;
};

}  // namespace quorvantis

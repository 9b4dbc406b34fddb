// SPDX-License-Identifier: MIT
#include "desktop/bank/hits/BankSelection.h"

#include <algorithm>
#include <utility>

namespace quorvantis {

std::vector<BankHit> SelectedHits(const QListView& list, const BankHitsModel& model) {
  QModelIndexList rows = list.selectionModel()->selectedIndexes();
  std::sort(rows.begin(), rows.end());
  std::vector<BankHit> hits;
  hits.reserve(static_cast<std::size_t>(rows.size()));
  for (const QModelIndex& row : rows) hits.push_back(model.HitAt(row.row()));
  return hits;
}

std::vector<BankQuestion> SelectedBankQuestions(const QListView& list, const BankHitsModel& model) {
  std::vector<BankQuestion> questions;
  for (BankHit& hit : SelectedHits(list, model)) questions.push_back(std::move(hit.question));
  return questions;
}

std::set<std::int64_t> SelectedQuestions(const QListView& list, const BankHitsModel& model) {
  std::set<std::int64_t> questions;
  for (const QModelIndex& row : list.selectionModel()->selectedIndexes())
    questions.insert(model.HitAt(row.row()).question.id);
  return questions;
}

void SelectQuestions(QListView& list, const BankHitsModel& model, const std::set<std::int64_t>& questions) {
  QItemSelection rows;
  for (int row = 0; row < model.rowCount(); ++row) {
    const QModelIndex index = model.index(row);
    if (questions.contains(model.HitAt(row).question.id)) rows.select(index, index);
  }
  list.selectionModel()->select(rows, QItemSelectionModel::Select);
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
// The rows that are selected in the list of hits, beside the current one, through changes of the list.
#pragma once

#include "desktop/bank/hits/BankHitsModel.h"

#include <QListView>

#include <cstdint>
#include <set>
#include <vector>

namespace quorvantis {

/// The selected questions in the order of their rows.
std::vector<BankHit> SelectedHits(const QListView& list, const BankHitsModel& model);

/// The same without what was found in them.
std::vector<BankQuestion> SelectedBankQuestions(const QListView& list, const BankHitsModel& model);

/// Their identifiers.
std::set<std::int64_t> SelectedQuestions(const QListView& list, const BankHitsModel& model);

/// Adds the rows of these questions to what is selected; the current row stays.
void SelectQuestions(QListView& list, const BankHitsModel& model, const std::set<std::int64_t>& questions);

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/form/ExchangeNotes.h"

#include <QLabel>
#include <QTreeWidget>
#include <QWidget>

#include <vector>

namespace quorvantis {

/// What a conversion loses, in groups: which questions, and what. A heading says what is listed.
class LossList : public QWidget {
 public:
  /// `strings` must outlive the list.
  LossList(const StringTable& strings, QWidget* parent);

  /// The heading is also what the list is called.
  void Show(const QString& heading, const std::vector<ExchangeNote>& notes);

 private:
  const StringTable& strings_;
  QLabel* heading_;
  QTreeWidget* list_;
};

}  // namespace quorvantis

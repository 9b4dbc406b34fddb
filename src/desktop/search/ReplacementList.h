// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/FrameSetExam.h"
#include "platform/StringTable.h"
#include "search/HitLine.h"
#include "search/ReplacementPlan.h"

#include <QAbstractTableModel>

#include <memory>
#include <vector>

namespace quorvantis {

/// Planned replacements, one row each, with ticks and lines of before and after. One that is not possible has
/// no tick and shows the reason.
class ReplacementList : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { kQuestion, kField, kBefore, kAfter, kColumns };

  /// `planned` are of `exam`. `strings` must outlive the list. Everything possible is ticked.
  ReplacementList(std::shared_ptr<const FrameSetExam> exam, std::vector<PlannedReplacement> planned,
                  const StringTable& strings, QObject* parent);

  std::vector<PlannedReplacement> Chosen() const;
  int Ticked() const { return ticked_; }
  /// How many can be ticked.
  int Possible() const { return possible_; }
  void TickAll(bool on);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

 signals:
  void TicksChanged();

 private:
  struct Row {
    PlannedReplacement planned;
    bool ticked;
  };

  const Row& At(const QModelIndex& index) const { return rows_[static_cast<std::size_t>(index.row())]; }
  HitLine LineOf(const Row& row, int column) const;
  QString TextOf(const Row& row, int column) const;

  std::shared_ptr<const FrameSetExam> exam_;
  const StringTable& strings_;
  std::vector<Row> rows_;
  int possible_ = 0;
  int ticked_ = 0;
};

}  // namespace quorvantis

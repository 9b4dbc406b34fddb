// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/FrameSetExam.h"
#include "platform/StringTable.h"
#include "search/ExamSearch.h"

#include <QAbstractTableModel>

#include <memory>
#include <vector>

namespace quorvantis {

/// The hits of a search, one row each. What a row shows is made when it is needed: there may be hundreds of
/// thousands.
class HitList : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { kQuestion, kField, kLine, kColumns };

  /// `strings` must outlive the list.
  HitList(const StringTable& strings, QObject* parent) : QAbstractTableModel(parent), strings_(strings) {}

  /// Shows the hits that were found in `exam`. Rows stay what they are if the hits are the same.
  void Show(std::shared_ptr<const FrameSetExam> exam, std::vector<SearchHit> hits);

  const SearchHit& Hit(int row) const { return hits_[static_cast<std::size_t>(row)]; }
  int Count() const { return static_cast<int>(hits_.size()); }

  /// The first row at a place or after it; Count() for none.
  int RowFrom(const TextPlace& place, std::size_t start) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QString TextOf(const SearchHit& hit, int column) const;

  const StringTable& strings_;
  std::shared_ptr<const FrameSetExam> exam_;
  std::vector<SearchHit> hits_;
};

}  // namespace quorvantis

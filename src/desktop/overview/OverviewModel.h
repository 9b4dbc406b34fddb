// SPDX-License-Identifier: MIT
#pragma once

#include "overview/OverviewRows.h"
#include "platform/StringTable.h"

#include <QAbstractTableModel>
#include <QIcon>

#include <map>
#include <optional>
#include <vector>

namespace quorvantis {

/// A sign in a row for what was found about its question.
struct OverviewMark {
  QIcon sign;
  QString tip;  ///< plain text, a line for each finding
};

/// The rows of an overview for a table. It holds no data of the exam but what the rows show.
class OverviewModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { Number, Kind, Text, Key, Score, Files, Missing, kColumns };

  /// `strings` must outlive the model.
  explicit OverviewModel(const StringTable& strings, QObject* parent = nullptr);

  /// Shows `rows`, ascending by number. Rows that stay the same are not touched, so that selection and scroll
  /// position stay.
  void Update(std::vector<OverviewRow> rows);

  /// Shows the marks of questions, by their numbers, in the column of what is missing.
  void ShowMarks(std::map<int, OverviewMark> marks);

  /// The number of the question in `row`, which must exist.
  int QuestionAt(int row) const { return rows_[static_cast<std::size_t>(row)].number; }
  /// The row of a question, if it is shown.
  std::optional<int> RowOf(int question) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }

 protected:
  const StringTable& Strings() const { return strings_; }

 private:
  void InsertRows(std::size_t at, std::vector<OverviewRow> rows);
  void RemoveRows(std::size_t begin, std::size_t end);
  const OverviewMark* MarkOf(const QModelIndex& index) const;
  QString SpokenText(const QModelIndex& index) const;
  QString CellText(const OverviewRow& row, int column) const;
  QString KindText(QuestionKind kind) const;
  QString MissingText(const MissingParts& missing) const;

  const StringTable& strings_;
  std::vector<OverviewRow> rows_;
  std::map<int, OverviewMark> marks_;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "learn/PaperStudy.h"
#include "platform/StringTable.h"

#include <QAbstractTableModel>

namespace quorvantis {

/// The questions that a study makes of its paper, for a table. It makes texts when they are asked for and
/// holds none.
class QuestionListModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { Number, Kind, Text, Options, Key, Notes, kColumns };

  /// `strings` must outlive the model.
  explicit QuestionListModel(const StringTable& strings, QObject* parent);

  /// Shows the questions of `study`, which must stay as it is until the next call; none without one.
  void ShowStudy(const PaperStudy* study);

  /// The number that the first question gets by the import, and how many questions get one.
  void SetNumbers(int first, int count);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QString CellText(int row, int column, QChar between) const;
  QString KindText(ReadKind kind) const;
  QString NumberText(int row) const;
  QStringList NotesOf(int row) const;

  const StringTable& strings_;
  const PaperStudy* study_ = nullptr;
  int first_ = 1;
  int count_ = 0;
};

}  // namespace quorvantis

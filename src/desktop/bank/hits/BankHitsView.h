// SPDX-License-Identifier: MIT
#pragma once

#include "bank/search/BankSearch.h"

#include <QListView>

#include <functional>
#include <optional>
#include <utility>

namespace quorvantis {

/// The list of a BankHitsModel, from which a question can be dragged to its place in the open exam.
class BankHitsView : public QListView {
  Q_OBJECT

 public:
  /// Inserts a question after another one of the open exam, or after the one that is shown; see QuestionDrag.
  using Inserts = std::function<QString(const BankQuestion& question, std::optional<int> after)>;

  explicit BankHitsView(QWidget* parent);

  void InsertWith(Inserts inserts) { inserts_ = std::move(inserts); }

  /// What a drop of a question does.
  QString Insert(const BankQuestion& question, std::optional<int> after) { return inserts_(question, after); }

 protected:
  void startDrag(Qt::DropActions actions) override;

 private:
  QPixmap PictureOf(const QModelIndex& row);

  Inserts inserts_;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "bank/search/BankSearch.h"
#include "desktop/controls/QuestionDrag.h"

#include <QListView>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace quorvantis {

/// The list of a BankHitsModel, from which the selected questions can be dragged to their place in the open
/// exam.
class BankHitsView : public QListView {
  Q_OBJECT

 public:
  /// Inserts questions after one of the open exam, or after the one that is shown; see QuestionDrag.
  using Inserts =
      std::function<QString(const std::vector<BankQuestion>& questions, std::optional<int> after)>;

  explicit BankHitsView(QWidget* parent);

  void InsertWith(Inserts inserts) { inserts_ = std::move(inserts); }

  /// What a drop of the selected questions does, also when others are selected by then.
  QuestionDrag::Insert Dragged();

 protected:
  void startDrag(Qt::DropActions actions) override;

 private:
  QPixmap PictureOf(const QModelIndex& row);

  Inserts inserts_;
};

}  // namespace quorvantis

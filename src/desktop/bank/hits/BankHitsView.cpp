// SPDX-License-Identifier: MIT
#include "desktop/bank/hits/BankHitsView.h"

#include "desktop/bank/hits/BankSelection.h"

#include <QDrag>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

constexpr int kWidestDrag = 320;  // pixels; a whole row would cover the place to drop it

}  // namespace

BankHitsView::BankHitsView(QWidget* parent) : QListView(parent) {
  setUniformItemSizes(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setAlternatingRowColors(true);
  setDragEnabled(true);
  setDragDropMode(DragOnly);
}

QuestionDrag::Insert BankHitsView::Dragged() {
  const auto* const hits = qobject_cast<const BankHitsModel*>(model());
  auto questions = hits != nullptr ? SelectedBankQuestions(*this, *hits) : std::vector<BankQuestion>();
  return [view = QPointer(this), questions = std::move(questions)](std::optional<int> after) {
    return view ? view->inserts_(questions, after) : QString();
  };
}

void BankHitsView::startDrag(Qt::DropActions) {
  const QModelIndex row = currentIndex();
  if (!row.isValid() || !inserts_) return;
  auto* drag = new QDrag(this);
  drag->setMimeData(new QuestionDrag(Dragged()));
  drag->setPixmap(PictureOf(row));
  drag->setHotSpot({0, 0});
  drag->exec(Qt::CopyAction);
}

QPixmap BankHitsView::PictureOf(const QModelIndex& row) {
  QRect place = visualRect(row);
  if (isRightToLeft()) place.setLeft(std::max(place.left(), place.right() - kWidestDrag));
  place.setWidth(std::min(place.width(), kWidestDrag));
  return viewport()->grab(place);
}

}  // namespace quorvantis

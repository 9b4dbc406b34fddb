// SPDX-License-Identifier: MIT
#include "desktop/bank/hits/BankHitsView.h"

#include "desktop/bank/hits/BankHitsModel.h"
#include "desktop/controls/QuestionDrag.h"

#include <QDrag>
#include <QPointer>

#include <algorithm>

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

/// The list may show other questions when this one is dropped.
void BankHitsView::startDrag(Qt::DropActions) {
  const QModelIndex row = currentIndex();
  const auto* const hits = qobject_cast<const BankHitsModel*>(model());
  if (hits == nullptr || !row.isValid() || !inserts_) return;
  const auto insert = [view = QPointer(this),
                       question = hits->HitAt(row.row()).question](std::optional<int> after) {
    return view ? view->Insert(question, after) : QString();
  };
  auto* drag = new QDrag(this);
  drag->setMimeData(new QuestionDrag(insert));
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

// SPDX-License-Identifier: MIT
#include "desktop/bank/draw/ArrangedDraw.h"

#include "bank/search/BankMemory.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace quorvantis {

void ArrangedDraw::Begin() {
  before_.push_back(now_);
  if (before_.size() > kMostSteps) before_.pop_front();
}

void ArrangedDraw::Put(DrawnList list) {
  Begin();
  now_ = std::move(list);
}

void ArrangedDraw::Exchange(std::size_t place, const AnotherDrawn& other) {
  if (!other.row) return;
  Begin();
  DrawnRow& row = now_.rows.at(place);
  now_.order.request.rejected.insert(row.question.key);
  now_.wishes.at(row.drawn.wish) = other.outcome;
  row = *other.row;
}

void ArrangedDraw::Remove(std::size_t place) {
  Begin();
  now_.order.request.rejected.insert(now_.rows.at(place).question.key);
  now_.rows.erase(std::next(now_.rows.begin(), static_cast<std::ptrdiff_t>(place)));
}

void ArrangedDraw::Move(std::size_t from, std::size_t to) {
  if (from == to) return;
  Begin();
  const auto first = now_.rows.begin();
  const auto source = std::next(first, static_cast<std::ptrdiff_t>(from));
  const auto target = std::next(first, static_cast<std::ptrdiff_t>(to));
  if (from < to)
    std::rotate(source, std::next(source), std::next(target));
  else
    std::rotate(target, source, std::next(source));
}

void ArrangedDraw::TakeInserted(const std::set<std::size_t>& gone) {
  Begin();
  std::vector<DrawnRow> left;
  left.reserve(gone.size());
  for (std::size_t i = 0; i < now_.rows.size(); ++i) {
    DrawnRow& row = now_.rows[i];
    if (!gone.contains(i)) {
      now_.order.request.openExam.emplace_back(ContentOfHit(row.question));
      continue;
    }
    left.push_back(std::move(row));
    left.back().isGone = true;
  }
  now_.rows = std::move(left);
}

void ArrangedDraw::GoBack() {
  now_ = std::move(before_.back());
  before_.pop_back();
}

}  // namespace quorvantis

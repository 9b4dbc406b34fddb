// SPDX-License-Identifier: MIT
#pragma once

#include "bank/search/DrawnList.h"

#include <cstddef>
#include <deque>
#include <set>

namespace quorvantis {

/// The drawn questions as the user arranges them, and the lists before. Every change is a step that can be
/// taken back.
class ArrangedDraw {
 public:
  static constexpr std::size_t kMostSteps = 50;  ///< that can be taken back

  const DrawnList& Now() const { return now_; }
  std::size_t Size() const { return now_.rows.size(); }

  /// Another draw.
  void Put(DrawnList list);
  /// Another question in a row, drawn by DrawAnother. The one that was there does not come again.
  void Exchange(std::size_t place, const AnotherDrawn& other);
  /// Nor does one that is removed.
  void Remove(std::size_t place);
  /// `to` is a row, too.
  void Move(std::size_t from, std::size_t to);
  /// The questions are in the open exam now, but those of the rows `gone`, which alone stay and are marked.
  void TakeInserted(const std::set<std::size_t>& gone);

  bool CanGoBack() const { return !before_.empty(); }
  void GoBack();

 private:
  void Begin();

  DrawnList now_;
  std::deque<DrawnList> before_;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamLimits.h"

#include <vector>

namespace quorvantis {

/// A new order of the 500 question slots: which old slot each new one gets its question from. It starts as
/// the order that there is.
class SlotOrder {
 public:
  /// The new slot is empty.
  static constexpr int kEmpty = 0;

  SlotOrder();

  /// `numbers`, here and below: ascending and without repetitions, 1 to 500. Afterwards they stand together,
  /// in the order that they had, from number `to` on; `to` plus their count must not exceed 501.
  void Move(const std::vector<int>& numbers, int to);

  /// Removes the slots; later ones close the gaps, and empty ones follow at the end.
  void Remove(const std::vector<int>& numbers);

  /// Opens `count` empty slots after slot `after`, 0 to 500 less `count`; the last ones of the exam are lost.
  void Open(int after, int count);

  /// The old number of new slot `number`, or kEmpty.
  int Source(int number) const { return sources_[static_cast<std::size_t>(number - 1)]; }

  /// The new number of old slot `number`; 0 if it has been removed.
  int NumberOf(int number) const;

  bool IsUnchanged() const { return *this == SlotOrder(); }
  bool operator==(const SlotOrder&) const = default;

 private:
  std::vector<int> sources_;  ///< by new number, from 1 on
};

}  // namespace quorvantis

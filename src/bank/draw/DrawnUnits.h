// SPDX-License-Identifier: MIT
#pragma once

#include "bank/draw/DrawUnits.h"

namespace quorvantis {

/// The units that have been drawn, each for a wish. None is taken back, it may only change its wish.
class DrawnUnits {
 public:
  DrawnUnits(std::span<const DrawCandidate> candidates, const std::vector<DrawUnit>& units,
             const ComparedAt& comparedAt);

  /// Whether the unit is the same question as a drawn one, without being drawn.
  bool IsNear(std::size_t unit);
  bool IsDrawn(std::size_t unit) const { return wishes_[unit].has_value(); }

  void Put(std::size_t unit, std::size_t wish);
  void Move(std::size_t unit, std::size_t wish) { wishes_[unit] = wish; }

  /// In the order in which they were drawn.
  const std::vector<std::size_t>& Units() const { return drawn_; }
  std::size_t WishOf(std::size_t unit) const { return *wishes_[unit]; }

 private:
  std::span<const DrawCandidate> candidates_;
  const std::vector<DrawUnit>& units_;
  const ComparedAt& comparedAt_;
  std::vector<std::optional<std::size_t>> wishes_;  // by unit
  std::vector<std::size_t> lookedAt_;               // by unit: how many drawn ones it was compared with
  std::vector<bool> isNear_;                        // by unit
  std::vector<std::size_t> drawn_;
  std::vector<ComparedQuestion> compared_;  // of the drawn ones
};

}  // namespace quorvantis

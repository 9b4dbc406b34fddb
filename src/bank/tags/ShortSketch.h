// SPDX-License-Identifier: MIT
#pragma once

#include "bank/near/QuestionSketch.h"

#include <optional>
#include <string>
#include <string_view>

namespace quorvantis {

/// A sketch short enough to stand in a file for people: a byte of each second value of a QuestionSketch.
class ShortSketch {
 public:
  ShortSketch() = default;
  explicit ShortSketch(const QuestionSketch& sketch);

  bool IsEmpty() const { return digits_.empty(); }

  /// 128 lower-case hexadecimal digits, or none.
  const std::string& Digits() const { return digits_; }
  /// Nothing for other texts.
  static std::optional<ShortSketch> FromDigits(std::string_view digits);

  /// About the likeness of the shingles of both, 0 to 1, off by 0.05 on average; 0 if one is empty.
  double Likeness(const ShortSketch& other) const;

 private:
  std::string digits_;
};

}  // namespace quorvantis

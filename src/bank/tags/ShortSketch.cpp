// SPDX-License-Identifier: MIT
#include "bank/tags/ShortSketch.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::size_t kBytesOfAShortSketch = QuestionSketch::kValues / 2;
constexpr std::string_view kHexDigits = "0123456789abcdef";

}  // namespace

ShortSketch::ShortSketch(const QuestionSketch& sketch) {
  if (sketch.IsEmpty()) return;
  for (std::size_t i = 0; i < kBytesOfAShortSketch; ++i) {
    const std::size_t byte = sketch.Values()[2 * i] & 0xFFU;
    digits_ += kHexDigits[byte >> 4];
    digits_ += kHexDigits[byte & 0xF];
  }
}

std::optional<ShortSketch> ShortSketch::FromDigits(std::string_view digits) {
  ShortSketch sketch;
  const bool isSketch = digits.size() == 2 * kBytesOfAShortSketch &&
                        digits.find_first_not_of(kHexDigits) == std::string_view::npos;
  if (!isSketch) return std::nullopt;
  sketch.digits_ = digits;
  return sketch;
}

double ShortSketch::Likeness(const ShortSketch& other) const {
  if (IsEmpty() || other.IsEmpty()) return 0;
  constexpr auto kAll = static_cast<double>(kBytesOfAShortSketch);
  constexpr double kByChance = 1.0 / 256;  // bytes of different values that are equal
  double equal = 0;
  for (std::size_t i = 0; i < digits_.size(); i += 2) {
    if (digits_[i] == other.digits_[i] && digits_[i + 1] == other.digits_[i + 1]) ++equal;
  }
  return std::max(0.0, (equal / kAll - kByChance) / (1 - kByChance));
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "likeness/Shingles.h"

#include <algorithm>

namespace quorvantis {

Shingles::Shingles(std::span<const std::u16string> normalised) {
  for (const std::u16string& text : normalised) Add(text);
  Sort();
}

Shingles::Shingles(std::u16string_view normalised) {
  Add(normalised);
  Sort();
}

void Shingles::Add(std::u16string_view normalised) {
  static_assert(kUnits * 16 == 64, "a shingle fills a number");
  std::uint64_t shingle = 0;
  for (std::size_t i = 0; i < normalised.size(); ++i) {
    shingle = (shingle << 16) | normalised[i];
    if (i + 1 >= kUnits || i + 1 == normalised.size()) values_.push_back(shingle);
  }
}

void Shingles::Sort() {
  std::sort(values_.begin(), values_.end());
  values_.erase(std::unique(values_.begin(), values_.end()), values_.end());
}

double Shingles::Likeness(const Shingles& other) const {
  std::size_t common = 0;
  auto a = values_.begin();
  auto b = other.values_.begin();
  while (a != values_.end() && b != other.values_.end()) {
    const std::uint64_t inA = *a;
    const std::uint64_t inB = *b;
    if (inA == inB) ++common;
    if (inA <= inB) ++a;
    if (inB <= inA) ++b;
  }
  const std::size_t all = values_.size() + other.values_.size() - common;
  return all == 0 ? 1 : static_cast<double>(common) / static_cast<double>(all);
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "text/SeededRandom.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <map>
#include <numeric>
#include <utility>
#include <vector>

namespace quorvantis::test {
namespace {

TEST(SeededRandom, IsTheSameEverywhere) {
  // Worked out by another program, from docs/VERSIONS.md.
  const std::pair<std::uint64_t, std::array<std::uint64_t, 3>> kNumbers[] = {
      {0, {0x99EC5F36CB75F2B4U, 0xBF6E1F784956452AU, 0x1A5F849D4933E6E0U}},
      {42, {0x15780B2E0C2EC716U, 0x6104D9866D113A7EU, 0xAE17533239E499A1U}},
      {~std::uint64_t{0}, {0x8F5520D52A7EAD08U, 0xC476A018CAA1802DU, 0x81DE31C0D260469EU}},
  };
  for (const auto& [seed, numbers] : kNumbers) {
    SeededRandom random(seed);
    for (const std::uint64_t number : numbers) EXPECT_EQ(random.Next(), number);
  }
  std::vector<int> values(10);
  std::iota(values.begin(), values.end(), 1);
  SeededRandom(42).Shuffle(values);
  EXPECT_EQ(values, (std::vector<int>{8, 4, 9, 10, 6, 7, 5, 2, 1, 3}));
}

TEST(SeededRandom, PrefersNoOrder) {
  constexpr int kRounds = 24'000;
  std::map<std::vector<int>, int> seen;
  for (std::uint64_t seed = 0; seed < kRounds; ++seed) {
    std::vector<int> values{1, 2, 3, 4};
    SeededRandom(seed).Shuffle(values);
    ++seen[values];
  }
  ASSERT_EQ(seen.size(), 24U);
  double chiSquare = 0;
  for (const auto& [order, count] : seen) chiSquare += (count - 1000.0) * (count - 1000.0) / 1000.0;
  EXPECT_LT(chiSquare, 49.7);  // one in a thousand fair generators is beyond, with 23 degrees of freedom
}

}  // namespace
}  // namespace quorvantis::test

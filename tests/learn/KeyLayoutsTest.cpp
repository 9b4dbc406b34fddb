// SPDX-License-Identifier: MIT
// No question gets a wrong key, and pupils see none, without a word.
#include "learn/KeyedPaper.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <numeric>
#include <vector>

namespace quorvantis::test {
namespace {

TEST(KeyLayouts, NoneIsReadWronglyInSilence) {
  std::vector<unsigned> seeds(40);
  std::iota(seeds.begin(), seeds.end(), 1U);
  seeds.insert(seeds.end(), {176, 202, 517});  // words that could be letters, keys without a heading, ranges
  seeds.insert(seeds.end(), {3053, 3505, 3593});  // tables without a heading, keys like parts, reasons
  std::size_t right = 0;
  std::size_t all = 0;
  for (const unsigned seed : seeds) {
    const KeyedPaper paper(seed);
    const std::string faults = Silent(paper, right);
    all += paper.questions.size();
    EXPECT_EQ(faults, "") << "seed " << seed << "\n" << Utf16ToUtf8(paper.text + paper.key);
  }
  std::printf("%zu of %zu answers\n", right, all);
  EXPECT_GT(right * 2, all);
}

}  // namespace
}  // namespace quorvantis::test

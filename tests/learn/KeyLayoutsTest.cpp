// SPDX-License-Identifier: MIT
// No question gets a wrong key, and pupils see none, without a word.
#include "learn/KeyedPaper.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace quorvantis::test {
namespace {

TEST(KeyLayouts, NoneIsReadWronglyInSilence) {
  constexpr unsigned kPapers = 40;
  std::size_t right = 0;
  std::size_t all = 0;
  for (unsigned seed = 1; seed <= kPapers; ++seed) {
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

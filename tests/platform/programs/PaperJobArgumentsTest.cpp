// SPDX-License-Identifier: MIT
#include "platform/programs/PaperJobArguments.h"

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

TEST(PaperJobArguments, BringEveryJobOver) {
  PaperOrder order{"/tmp/a b", "/app", 0x0401, {}};
  for (int i = 0; i < 8; ++i) {
    order.jobs.push_back({"/exam " + std::to_string(i), "/out", static_cast<Sheet>(i % 4),
                          i == 3 ? u"" : u"\u4E00", u"--x", i % 2 == 1, i < 4});
  }
  std::vector<std::string> arguments = PaperArguments(order);
  const auto again = PaperOrderOf(arguments);
  ASSERT_TRUE(again);
  EXPECT_EQ(PaperArguments(*again), arguments);
  EXPECT_EQ(again->jobs[5].sheet, order.jobs[5].sheet);
  EXPECT_EQ(again->jobs[3].exam, order.jobs[3].exam);
  arguments.pop_back();
  EXPECT_FALSE(PaperOrderOf(arguments));
  EXPECT_FALSE(PaperOrderOf({}));
}

}  // namespace
}  // namespace quorvantis::test

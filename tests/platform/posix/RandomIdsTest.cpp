// SPDX-License-Identifier: MIT
#include "platform/posix/RandomIds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace quorvantis::test {
namespace {

bool IsUpperHexDigit(char16_t unit) {
  return std::u16string_view(u"0123456789ABCDEF").find(unit) != std::u16string_view::npos;
}

TEST(RandomIds, HaveTheFormOfRegistryKeysAndDiffer) {
  RandomIds ids;
  std::set<std::u16string> seen;
  for (int i = 0; i < 1000; ++i) {
    std::u16string id = ids.NewId();
    EXPECT_TRUE(seen.insert(id).second);
    ASSERT_EQ(id.size(), 38u);
    EXPECT_EQ(id[15], u'4') << "the version of a random one";
    std::ranges::replace_if(id, IsUpperHexDigit, u'x');
    EXPECT_EQ(id, u"{xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx}");
  }
}

}  // namespace
}  // namespace quorvantis::test

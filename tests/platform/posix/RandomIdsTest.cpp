// SPDX-License-Identifier: MIT
#include "platform/posix/RandomIds.h"

#include <gtest/gtest.h>

#include <set>

namespace quorvantis::test {
namespace {

TEST(RandomIds, HaveTheFormOfRegistryKeysAndDiffer) {
  RandomIds ids;
  std::set<std::u16string> seen;
  const std::u16string form = u"{XXXXXXXX-XXXX-4XXX-XXXX-XXXXXXXXXXXX}";
  for (int i = 0; i < 1000; ++i) {
    const std::u16string id = ids.NewId();
    ASSERT_EQ(id.size(), form.size());
    for (std::size_t at = 0; at < form.size(); ++at) {
      const bool fits = form[at] == u'X'
                            ? std::u16string_view(u"0123456789ABCDEF").find(id[at]) != std::string::npos
                            : id[at] == form[at];
      ASSERT_TRUE(fits) << at;
    }
    EXPECT_TRUE(seen.insert(id).second);
  }
}

}  // namespace
}  // namespace quorvantis::test

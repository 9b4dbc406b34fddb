// SPDX-License-Identifier: MIT
#include "platform/posix/RandomIds.h"
#include "text/Utf.h"

#include <gtest/gtest.h>

#include <regex>
#include <set>

namespace quorvantis::test {
namespace {

TEST(RandomIds, HaveTheFormOfRegistryKeysAndDiffer) {
  const std::regex form("\\{[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[0-9A-F]{4}-[0-9A-F]{12}\\}");
  RandomIds ids;
  std::set<std::string> seen;
  for (int i = 0; i < 1000; ++i) {
    const std::string id = Utf16ToUtf8(ids.NewId());
    EXPECT_TRUE(std::regex_match(id, form)) << id;
    EXPECT_TRUE(seen.insert(id).second) << id;
  }
}

}  // namespace
}  // namespace quorvantis::test

// SPDX-License-Identifier: MIT
#include "host/ApplicationFolderClaim.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

using Problem = ApplicationFolderClaim::Problem;

TEST(ApplicationFolderClaim, HoldsAFolderForOneProgram) {
  const TemporaryFolder folder;
  const ApplicationFolderClaim first(folder / "new/./app/");
  EXPECT_EQ(first.WhatIsWrong(), Problem::None);
  EXPECT_EQ(first.Folder(), folder / "new/app");
  EXPECT_TRUE(std::filesystem::is_empty(first.Folder())) << "trying leaves nothing";
  EXPECT_EQ(ApplicationFolderClaim(folder / "new/app").WhatIsWrong(), Problem::InUse);
}

TEST(ApplicationFolderClaim, SaysWhatIsWrong) {
  const TemporaryFolder folder;
  const ApplicationFolderClaim file(WriteBytes(folder / "file", "content"));
  EXPECT_EQ(file.WhatIsWrong(), Problem::NoFolder);
  EXPECT_TRUE(file.Explanation().starts_with(file.Folder().string())) << file.Explanation();
  const ApplicationFolderClaim system("/proc/self");
  EXPECT_EQ(system.WhatIsWrong(), Problem::NotWritable) << "not even by root";
}

}  // namespace
}  // namespace quorvantis::test

// SPDX-License-Identifier: MIT
#include "examfile/WorkFolder.h"
#include "support/OrdinaryUser.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

TEST(ClearFolderTree, DeletesEverythingBelowAndFollowsNoLink) {
  const TemporaryFolder folder;
  const fs::path beside = WriteBytes(folder / "beside" / "file", "stays"), tree = folder / "tree";
  fs::permissions(folder.Path(), fs::perms(0777));
  fs::permissions(folder / "beside", fs::perms(0777));
  {
    const OrdinaryUser user;
    for (const char* name : {"read-only", ".hidden", "sub/deeper/file", "locked/file", "odd\xFF"})
      WriteBytes(tree / name, "");
    fs::create_directory(tree / "empty");
    fs::create_directory_symlink(folder / "beside", tree / "to folder");
    fs::create_symlink(beside, tree / "to file");
    fs::create_symlink("nowhere", tree / "to nothing");
    fs::create_directory_symlink(tree, tree / "sub" / "to itself");
    fs::permissions(tree / "read-only", fs::perms(0400));
    fs::permissions(tree / "locked", fs::perms(0));
    fs::permissions(tree / "sub", fs::perms(0500));
    ClearFolderTree(tree);
    EXPECT_TRUE(fs::is_empty(tree));
    fs::create_directory_symlink(folder / "beside", folder / "link");
    for (const fs::path& path : {beside, folder / "missing", folder / "link", fs::path()})
      ClearFolderTree(path);
    RemoveFolder(folder / "link");
    EXPECT_FALSE(fs::is_symlink(folder / "link"));
  }
  EXPECT_EQ(ReadBytes(beside), "stays");
}

}  // namespace
}  // namespace quorvantis::test

// SPDX-License-Identifier: MIT
#include "preview/ServedFiles.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

struct ServedFilesTest : testing::Test {
  TemporaryFolder folder;
  fs::path app = fs::canonical(folder.Path()) / "app";
  ServedFiles files{app};

  fs::path Make(const fs::path& relative) { return WriteBytes(app / relative, "x"); }
};

TEST_F(ServedFilesTest, WorkFoldersAndNothingBesideThem) {
  for (const char* name : {"TEMP/ExamPreview/~tt/a", "~TEMP/a", "~BrelmStudent/ID1/SEE.htm"}) {
    EXPECT_EQ(files.Find(Make(name)), app / name);
  }
  for (const char* name : {"system.ini", "TEMPORARY/a", "~TEMP2/a", "other/TEMP/a"}) {
    EXPECT_EQ(files.Find(Make(name)), std::nullopt) << name;
  }
  EXPECT_EQ(files.Find(app / "~TEMP"), std::nullopt) << "a folder is no file";
  EXPECT_EQ(files.Find("/etc/passwd"), std::nullopt);
}

TEST_F(ServedFilesTest, DotsAndLinksLeadNowhere) {
  Make("~TEMP/a");
  Make("system.ini");
  EXPECT_EQ(files.Find(app / "~TEMP" / ".." / "system.ini"), std::nullopt);
  EXPECT_EQ(files.Find(app / "~TEMP" / ".." / "~TEMP" / "a"), app / "~TEMP" / "a");
  fs::create_symlink("/etc/passwd", app / "~TEMP" / "link");
  fs::create_directory_symlink("/etc", app / "~TEMP" / "etc");
  fs::create_directory_symlink("/etc", app / "TEMP");
  EXPECT_EQ(files.Find(app / "~TEMP" / "link"), std::nullopt);
  EXPECT_EQ(files.Find(app / "~TEMP" / "etc" / "passwd"), std::nullopt);
  EXPECT_EQ(files.Find(app / "TEMP" / "passwd"), std::nullopt);
}

TEST_F(ServedFilesTest, RelativeAddressesMeanThePageFolderFirst) {
  files.SetPageFolder(app / "TEMP" / "ExamPreview");
  Make("~TEMP/a");
  EXPECT_EQ(files.Find(app / "TEMP/ExamPreview/~TEMP/a"), app / "~TEMP/a");
  Make("TEMP/ExamPreview/~TEMP/a");
  EXPECT_EQ(files.Find(app / "TEMP/ExamPreview/~TEMP/a"), app / "TEMP/ExamPreview/~TEMP/a");
  // The page on paper lies in the application folder and names files of an opened exam by their own folder.
  files.SetPageFolder(app);
  Make("TEMP/ExamPreview/~tt/b");
  EXPECT_EQ(files.Find(app / "~tt/b"), app / "TEMP/ExamPreview/~tt/b");
}

}  // namespace
}  // namespace quorvantis::test

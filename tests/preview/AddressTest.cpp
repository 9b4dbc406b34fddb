// SPDX-License-Identifier: MIT
// URLs of files, files of URLs, and which files are served.
#include "preview/AttachedText.h"
#include "preview/PageAddress.h"
#include "preview/ServedFiles.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

TEST(PageAddress, StrangeAddressesNameNoFile) {
  for (const char* address :
       {"http://app/a", "exam://other/a", "file:///a", "exam:a", "exam://app", "exam://app/a%00b"}) {
    EXPECT_EQ(FileOf(QUrl(address)), std::nullopt) << address;
  }
  EXPECT_EQ(FileOf(QUrl("exam://app/a/..%2f..%2fetc/passwd")), std::filesystem::path("/etc/passwd"))
      << "normal, so that whoever permits it sees where it leads";
  EXPECT_EQ(OwnNameOf(QUrl("exam://app/.quorvantis/flash/..%2f../etc/x.js")), std::nullopt);
  EXPECT_EQ(OwnNameOf(OwnAddress("flash/a.js")), std::filesystem::path("flash/a.js"));
}

TEST(AttachedText, TheEncodingIsFound) {
  EXPECT_EQ(DecodeAttachedText("plain \xE6\x89\x93"), QString("plain 打"));
  EXPECT_EQ(DecodeAttachedText("\xEF\xBB\xBF\xE6\x89\x93"), QString("打"));
  EXPECT_EQ(DecodeAttachedText("\xB4\xF2\xD3\xA1"), QString("打印"));
  EXPECT_EQ(DecodeAttachedText(QByteArray("\xFE\xFF\x62\x53", 4)), QString("打"));
  EXPECT_EQ(DecodeAttachedText(""), QString());
}

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

TEST_F(ServedFilesTest, RelativeAddressesMeanThePageFolderFirst) {
  files.SetPageFolder(app / "TEMP" / "ExamPreview");
  Make("~TEMP/a");
  EXPECT_EQ(files.Find(app / "TEMP/ExamPreview/~TEMP/a"), app / "~TEMP/a");
  Make("TEMP/ExamPreview/~TEMP/a");
  EXPECT_EQ(files.Find(app / "TEMP/ExamPreview/~TEMP/a"), app / "TEMP/ExamPreview/~TEMP/a");
  // The print page lies in the application folder and refers to the files of an opened exam by their own
  // folder.
  files.SetPageFolder(app);
  Make("TEMP/ExamPreview/~tt/b");
  EXPECT_EQ(files.Find(app / "~tt/b"), app / "TEMP/ExamPreview/~tt/b");
}

}  // namespace
}  // namespace quorvantis::test

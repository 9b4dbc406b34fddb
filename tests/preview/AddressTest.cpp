// SPDX-License-Identifier: MIT
// URLs of files, files of URLs, and which files are served.
#include "preview/AttachedText.h"
#include "preview/PageAddress.h"
#include "preview/RequestGuard.h"
#include "preview/ServedFiles.h"
#include "preview/SourceEscapes.h"
#include "support/TemporaryFolder.h"
#include "text/PathText.h"

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

TEST(PageAddress, EveryNameComesBack) {
  for (const char* name : {"/a/SEE.htm", "/a/50%#1?&+;.jpg", "/a/打印 x.doc", "/a/b\\c", "/a/%41",
                           "/a/\xFF\xFE.jpg", "/a/\"'<>.gif", "/~TEMP/x"}) {
    EXPECT_EQ(FileOf(AddressOf(name)), std::filesystem::path(name))
        << AddressOf(name).toEncoded().constData();
  }
}

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

TEST(RequestGuard, OnlyAddressesOfTheExamAndSuchThatCarryTheirContent) {
  for (const char* inside : {"exam://app/a", "data:text/plain,a", "blob:exam://app/1", "about:blank"}) {
    EXPECT_TRUE(RequestGuard::StaysInside(QUrl(inside))) << inside;
  }
  for (const char* outside :
       {"http://app/", "https://app/", "exam://other/", "file:///etc/passwd", "ws://app/", "chrome://gpu",
        "filesystem:x", "view-source:exam://app/a", "c:\\a", ""}) {
    EXPECT_FALSE(RequestGuard::StaysInside(QUrl(outside))) << outside;
  }
}

std::u16string Escaped(std::u16string_view page, const std::filesystem::path& name, bool muted = false) {
  ComposedPages pages;
  const std::filesystem::path file = "/~T" / name;
  pages.AddSource({PathToText(file).substr(1), file, u"n&\"", muted});
  return EscapeSources(page, pages);
}

TEST(SourceEscapes, SourcesBecomeAddressesAndBringTheirNames) {
  const std::u16string name = u" data-name=\"n&#38;&#34;\"";
  EXPECT_EQ(Escaped(u"<img src=\"~T/a#1.jpg\" ><FRAME  SRC=\"~T/a#1.jpg\">", "a#1.jpg"),
            u"<img src=\"/~T/a%231.jpg\"" + name + u" ><FRAME  SRC=\"/~T/a%231.jpg\"" + name + u">");
  EXPECT_EQ(Escaped(u"<embed src=\\\"~T/50% \\\\ x.wav\\\" autostart=\\\"0\\\">", "50% \\ x.wav", true),
            u"<embed src=\\\"/~T/50%25%20%5C%20x.wav\\\" data-name=\\\"n&#38;&#34;\\\" data-muted "
            u"autostart=\\\"0\\\">");
  EXPECT_EQ(Escaped(u"<img src=\"~T/a\" b\"c.gif\" >", "a\" b\"c.gif"),
            u"<img src=\"/~T/a%22%20b%22c.gif\"" + name + u" >");
  EXPECT_EQ(Escaped(u"src=\"~T/\xDCFF.gif\"", "\xFF.gif"), u"src=\"/~T/%FF.gif\"" + name);
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
  // The print page lies in the application folder and refers to the files of an opened exam by their own
  // folder.
  files.SetPageFolder(app);
  Make("TEMP/ExamPreview/~tt/b");
  EXPECT_EQ(files.Find(app / "~tt/b"), app / "TEMP/ExamPreview/~tt/b");
}

}  // namespace
}  // namespace quorvantis::test

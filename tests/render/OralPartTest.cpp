// SPDX-License-Identifier: MIT
#include "RenderTest.h"
#include "render/OralPart.h"

namespace quorvantis::test {
namespace {

class OralPartTest : public RenderTest {
 protected:
  OralPartTest() {
    exam.pageRenderer.studentIdText = u"007";
    fs::current_path(folder.Path());
  }
  ~OralPartTest() override { fs::current_path(before); }

  std::string Block(const RenderFlags& flags) const { return Utf16ToUtf8(oral.OralBlock(2, 5, flags)); }
  OralMarkKind Mark(const RenderFlags& flags) const { return oral.OralMark(2, 5, flags); }

  const fs::path before = fs::current_path();
  OralPart oral{exam.pageRenderer, world.services};
};

TEST_F(OralPartTest, HasARecorderOnceMediaAreEnabled) {
  EXPECT_EQ(Block(kPrintPage), "<font color=\"green\">[148 %s]</font><br><br>\r\n");
  exam.pageRenderer.SetMediaSuppressed(0);
  ExpectGolden("recorder.htm", Replaced(Block(kPrintPage), App(), "APP"));
  exam.pageRenderer.allowVideoRecording = 1;
  EXPECT_NE(Block(kPrintPage).find("<param name=\"AllowEncVideo\" value=\"True\">"), std::string::npos);
}

TEST_F(OralPartTest, DoublesBackslashesOfTheRecordersFolder) {
  world.services.applicationFolder = "/a\\b";
  EXPECT_NE(oral.OralRecorderObject(0).find(u"\"/a\\\\b/~BrelmStudent/ID7/1.wmv\""), std::u16string::npos);
}

TEST_F(OralPartTest, HasALabelBesideTheKey) {
  for (const RenderFlags& flags : {kPreviewPage, kKeyPage}) {
    EXPECT_EQ(Block(flags), "<font color=0000ff>[147 %s]</font><br><br>\r\n");
  }
}

TEST_F(OralPartTest, PlaysTheStoredRecording) {
  const std::string label = "<font color=0000ff>[146 %s]  :</font><br><br>\r\n";
  const fs::path recordings = folder / "app" / "~BrelmStudent" / "ID007";  // the number as it stands
  EXPECT_EQ(Block(kResultPage), label);
  EXPECT_EQ(Mark(kResultPage), OralMarkKind::Wrong);
  WriteBytes(recordings / "3.wma", "");
  EXPECT_EQ(Mark(kResultPage), OralMarkKind::Plain);
  const std::string source = App().substr(3) + "/~BrelmStudent/ID007/3";
  EXPECT_TRUE(Block(kResultPage).starts_with(label + "<div id="));
  EXPECT_NE(Block(kResultPage).find("embed src=\\\"" + source + ".wma\\\""), std::string::npos);
  WriteBytes(recordings / "3.wmv", "");
  EXPECT_NE(Block(kResultPage).find("embed src=\\\"" + source + ".wmv\\\""), std::string::npos);
}

/// Looked for in one folder, played from another: the host copies the answers there.
TEST_F(OralPartTest, PlaysTheCopyOfAnOralAnswer) {
  EXPECT_EQ(Block(kResponsePage), "");
  EXPECT_EQ(Mark(kResponsePage), OralMarkKind::Wrong);
  WriteBytes(folder / "~OralAns" / "ID5" / "3.wma", "");
  EXPECT_EQ(Mark(kResponsePage), OralMarkKind::Plain);
  EXPECT_NE(Block(kResponsePage).find("embed src=\\\"~Ans/ID5/3.wma\\\""), std::string::npos);
  WriteBytes(folder / "~OralAns" / "ID5" / "3.wmv", "");
  EXPECT_NE(Block(kResponsePage).find("embed src=\\\"~Ans/ID5/3.wmv\\\""), std::string::npos);
}

TEST_F(OralPartTest, HasNothingOnOtherPages) {
  for (const RenderFlags& flags : {RenderFlags{}, RenderFlags{true, true, true, true, true}}) {
    EXPECT_EQ(Block(flags), "");
    EXPECT_EQ(Mark(flags), OralMarkKind::Plain);
  }
}

}  // namespace
}  // namespace quorvantis::test

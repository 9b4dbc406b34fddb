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

  /// A recording counts as an answer, and a video comes before a sound.
  void ExpectPlays(const RenderFlags& flags, const fs::path& recording, const std::string& source) {
    EXPECT_EQ(Mark(flags), OralMarkKind::Wrong);
    for (const char* extension : {".wma", ".wmv"}) {
      WriteBytes(recording.string() + extension, "");
      EXPECT_EQ(Mark(flags), OralMarkKind::Plain);
      EXPECT_NE(Block(flags).find("embed src=\\\"" + source + extension + "\\\""), std::string::npos);
    }
  }

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

TEST_F(OralPartTest, PlaysTheStoredRecording) {
  const std::string label = "<font color=0000ff>[146 %s]  :</font><br><br>\r\n";
  EXPECT_EQ(Block(kResultPage), label);
  ExpectPlays(kResultPage, folder / "app/~BrelmStudent/ID007/3",  // the number as stored
              App().substr(3) + "/~BrelmStudent/ID007/3");
}

/// Searched in one folder and played from another: the host copies the answers there.
TEST_F(OralPartTest, PlaysTheCopyOfAnOralAnswer) {
  EXPECT_EQ(Block(kResponsePage), "");
  ExpectPlays(kResponsePage, folder / "~OralAns/ID5/3", "~Ans/ID5/3");
}

TEST_F(OralPartTest, IsALabelOrNothingOnOtherPages) {
  for (const RenderFlags& flags : {kPreviewPage, kKeyPage})
    EXPECT_EQ(Block(flags), "<font color=0000ff>[147 %s]</font><br><br>\r\n");
  for (const RenderFlags& flags : {RenderFlags{}, RenderFlags{true, true, true, true, true}}) {
    EXPECT_EQ(Block(flags), "");
    EXPECT_EQ(Mark(flags), OralMarkKind::Plain);
  }
}

}  // namespace
}  // namespace quorvantis::test

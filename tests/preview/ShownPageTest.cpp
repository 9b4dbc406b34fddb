// SPDX-License-Identifier: MIT
// How pages of an exam come together in the browser.
#include "PreviewTest.h"

namespace quorvantis::test {
namespace {

const char* const kTwoPanes =
    "<FRAMESET COLS=\"50,50\"><FRAME SRC=\"SEE1.htm\"  NOSIZE><FRAME SRC=\"SEE2.htm\"  NOSIZE></FRAMESET>";

/// Text of the frame that `path` leads to from the top, for example "[0].frames[1]".
QString TextOf(const QString& path) {
  return "window.frames" + path + ".document.body.innerText.trim()";
}

class FrameTest : public PreviewTest {
 protected:
  std::filesystem::path ComposeFrameset() {
    std::filesystem::path main = previewFolder / "SEE.htm";
    pages.Add(main, QString::fromLatin1(kTwoPanes).prepend("<HTML>").toStdU16String());
    return main;
  }
};

TEST_F(FrameTest, ShowsBothPanesAndTheFramesInThem) {
  Compose("SEE1.htm", "Questions 打印 ╴");
  pages.Add(previewFolder / "SEE2.htm",
            u"<HTML><FRAMESET  ROWS=\"50%,50%\"><FRAME  SRC=\"SEE2_1.htm\"><FRAME  SRC=\"" +
                (previewFolder / "SEE2_2.htm").u16string() + u"\"></FRAMESET></HTML>");
  Compose("SEE2_1.htm", "first group");
  Compose("SEE2_2.htm", "second group");
  Preview(ComposeFrameset());
  ASSERT_TRUE(Becomes("window.frames.length === 2 && window.frames[1].frames.length === 2"));
  EXPECT_EQ(Evaluate(TextOf("[0]")).toString(), QString("Questions 打印 ╴"));
  EXPECT_EQ(Evaluate(TextOf("[1].frames[0]")).toString(), "first group");
  EXPECT_EQ(Evaluate(TextOf("[1].frames[1]")).toString(), "second group");
}

TEST_F(FrameTest, ShowsTheWholePageWhereTheFileIsCut) {
  const std::filesystem::path page = Compose("SEE.htm", "beginning and end");
  WriteBytes(page, "<HTML><BODY>begin");
  Preview(page);
  EXPECT_EQ(Evaluate("document.body.innerText.trim()").toString(), "beginning and end");
}

TEST_F(FrameTest, FillsTheScreenOnTopOfEverythingWithoutACaption) {
  Preview(Compose("SEE.htm", "x"));
  EXPECT_TRUE(Window().isVisible());
  EXPECT_EQ(Window().frameGeometry(), QGuiApplication::primaryScreen()->geometry());
  EXPECT_TRUE(Window().windowFlags().testFlag(Qt::FramelessWindowHint));
  EXPECT_TRUE(Window().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_TRUE(Window().windowTitle().isEmpty());
}

}  // namespace
}  // namespace quorvantis::test

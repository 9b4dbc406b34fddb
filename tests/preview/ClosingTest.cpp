// SPDX-License-Identifier: MIT
// All ways to close a preview.
#include "PreviewTest.h"

#include <QMessageBox>

namespace quorvantis::test {
namespace {

const char* const kFinishButton =
    "<input type=BUTTON id=finish value=\"Finish\" onclick=window.status=\"ExamFinish\">";

class ClosingTest : public PreviewTest {
 protected:
  /// Sends a key as the window system does: to the window, for the widget that has the focus in it.
  void PressEscape() { QTest::keyClick(Window().windowHandle(), Qt::Key_Escape); }
  /// A page whose script never ends once the page has been shown: it then no longer responds.
  void PreviewForever() {
    Preview(Compose("SEE.htm", "x"));
    Page().runJavaScript("setTimeout(() => { while (true) alert('again'); }, 0)");
    QTest::qWait(200);
  }
  bool PageEnds() {
    return WaitFor([&] { return Page().lifecycleState() == QWebEnginePage::LifecycleState::Discarded; });
  }
};

TEST_F(ClosingTest, TheFinishButtonOfANestedFrameTellsTheOwnerOnceAndEndsThePageAfterASecond) {
  const auto main = previewFolder / "SEE.htm";
  pages.Add(
      main,
      u"<HTML><FRAMESET COLS=\"50,50\"><FRAME SRC=\"SEE1.htm\"><FRAME SRC=\"SEE2.htm\"></FRAMESET></HTML>");
  pages.Add(previewFolder / "SEE1.htm",
            u"<HTML><FRAMESET ROWS=\"*\"><FRAME SRC=\"SEE3.htm\"></FRAMESET></HTML>");
  Compose("SEE2.htm", "files");
  Compose("SEE3.htm", kFinishButton);
  Preview(main);
  ASSERT_TRUE(Becomes("window.frames[0].frames[0].document.getElementById('finish')"));
  QElapsedTimer timer;
  timer.start();
  Evaluate("for (const n of [1, 2]) window.frames[0].frames[0].document.getElementById('finish').click()");
  ASSERT_TRUE(WaitFor([&] { return owner.finished > 0; }, 3000));
  EXPECT_FALSE(Window().isVisible());
  EXPECT_TRUE(PageEnds());
  EXPECT_GE(timer.elapsed(), 950);
  EXPECT_EQ(owner.finished, 1);
  Window().StatusTextChange(u"ExamFinish");
  EXPECT_EQ(owner.finished, 1);
}

TEST_F(ClosingTest, OtherStatusTextsDoNotFinish) {
  Preview(Compose("SEE.htm", "<script>window.status='examfinish'; window.status='Loading'</script>x"));
  EXPECT_EQ(Evaluate("window.status").toString(), "Loading");
  QTest::qWait(200);
  for (const auto* text : {u"", u"ExamFinis", u" ExamFinish"}) Window().StatusTextChange(text);
  EXPECT_EQ(owner.finished, 0);
  EXPECT_TRUE(Window().isVisible());
  Window().StatusTextChange(u"ExamFinished");
  EXPECT_EQ(owner.finished, 1);
}

TEST_F(ClosingTest, EscapeLeavesAPageThatSwallowsKeys) {
  Preview(Compose("SEE.htm",
                  "<input id=field autofocus><script>for (const type of ['keydown', 'keyup', 'keypress'])"
                  "window.addEventListener(type, e => { e.preventDefault(); e.stopPropagation(); }, true);"
                  "onbeforeunload = () => 'stay'</script>"));
  Evaluate("document.getElementById('field').focus()");
  // A page that the user has interacted with may ask whether to stay.
  QTest::mouseClick(Window().findChild<QWebEngineView*>()->focusProxy(), Qt::LeftButton, {}, {30, 20});
  QTest::keyClick(Window().windowHandle(), Qt::Key_A);
  PressEscape();
  EXPECT_FALSE(Window().isVisible());
  EXPECT_TRUE(WaitFor([&] { return Page().url() == QUrl("about:blank"); }));
  EXPECT_EQ(owner.finished, 0);
}

TEST_F(ClosingTest, EscapeLeavesAPageThatNeverEndsAndTheNextPreviewNeedNotWait) {
  for (int i = 0; i < 3; ++i) {
    PreviewForever();
    PressEscape();
    EXPECT_FALSE(Window().isVisible());
    EXPECT_TRUE(i > 0 || PageEnds()) << "its scripts run on";
    Preview(Compose("SEE.htm", "the next preview"));
    EXPECT_EQ(Evaluate("document.body.innerText.trim()").toString(), "the next preview");
  }
}

TEST_F(ClosingTest, EscapeDoesNotReachTheWindowBelow) {
  QWidget below;
  below.show();
  Preview(Compose("SEE.htm", "x"));
  class Listener : public QObject {
   public:
    int escapes = 0;
    bool eventFilter(QObject*, QEvent* event) override {
      escapes += event->type() == QEvent::KeyPress;
      return false;
    }
  } listener;
  below.installEventFilter(&listener);
  QTest::keyClick(&below, Qt::Key_Escape);
  EXPECT_FALSE(Window().isVisible());
  for (int i = 0; i < 3; ++i) {  // held down, or pressed again to be sure
    QTest::qWait(500);
    QTest::keyClick(&below, Qt::Key_Escape);
    EXPECT_EQ(listener.escapes, 0);
  }
  QTest::qWait(1100);
  QTest::keyClick(&below, Qt::Key_Escape);
  EXPECT_EQ(listener.escapes, 1);
}

TEST_F(ClosingTest, ClosingTheWindowLeavesThePreview) {
  QWidget below;
  below.show();
  Preview(Compose("SEE.htm", "x"));
  EXPECT_FALSE(Window().close());
  EXPECT_FALSE(Window().isVisible());
  EXPECT_EQ(owner.finished, 0);
  Preview(Compose("SEE.htm", "x"));
  below.close();
  EXPECT_TRUE(Window().close()) << "the program could not end";
}

}  // namespace
}  // namespace quorvantis::test

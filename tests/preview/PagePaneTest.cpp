// SPDX-License-Identifier: MIT
#include "PreviewTest.h"
#include "preview/PagePane.h"

#include <QSignalSpy>
#include <QVBoxLayout>

namespace quorvantis::test {
namespace {

class PagePaneTest : public PreviewTest {
 protected:
  PagePaneTest() {
    auto* const layout = new QVBoxLayout(&around);
    layout->addWidget(&pane);
    around.resize(500, 400);
    around.show();
  }

  /// What a script of ours finds in the page.
  QVariant Find(const QString& script) {
    const auto found = std::make_shared<std::optional<QVariant>>();
    pane.findChild<QWebEngineView*>()->page()->runJavaScript(
        script, QWebEngineScript::ApplicationWorld, [found](const QVariant& value) { *found = value; });
    return QTest::qWaitFor([&] { return found->has_value(); }, 5000) ? **found : QVariant();
  }
  bool Comes(const QString& script) {
    return QTest::qWaitFor([&] { return Find(script).toBool(); }, kLongest);
  }
  void ShowBody(const char* name, const std::string& body) { pane.Show(Compose(name, body)); }

  QWidget around;
  PagePane pane{GatewaySetup{app, pages, flashPlayer, programs, texts},
                "document.body.dataset.ours = document.querySelectorAll('b').length", &around};
};

TEST_F(PagePaneTest, RunsOurScriptAndNoneOfThePage) {
  const std::string evil = "document.body.dataset.theirs = 1";
  const auto picture = Attach("picture.bmp", "no picture");
  Attach("inner.htm", "<body><script>top.document.body.dataset.theirs = 1; document.title = 'ran'</script>");
  ShowBody("one.htm", "<b>x</b><script>" + evil + "</script><img src='~TEMP/home/none' onerror='" + evil +
                          "'><iframe src='~TEMP/home/inner.htm'></iframe><a href='javascript:" + evil +
                          "'>link</a><p onclick='" + evil + "'>");
  ASSERT_TRUE(Comes("document.body.dataset.ours === '1' && document.readyState === 'complete'"));
  Find("document.querySelector('a').click(); document.querySelector('p').click()");
  QTest::qWait(300);
  EXPECT_TRUE(Find("document.body.dataset.theirs === undefined").toBool());
  ShowBody("two.htm", "<b>x</b><b>y</b>");
  EXPECT_TRUE(Comes("document.body.dataset.ours === '2'"));
  pane.Clear();
  EXPECT_TRUE(Comes("document.body.textContent === ''"));
}

TEST_F(PagePaneTest, LetsTheKeyboardGo) {
  ShowBody("one.htm", "<b>x</b><a href='#'>link</a><input><textarea></textarea>");
  ASSERT_TRUE(Comes("document.body.dataset.ours === '1'"));
  const QSignalSpy escapes(&pane, &PagePane::EscapePressed);
  const QSignalSpy tabs(&pane, &PagePane::TabPressed);
  QWidget* const keys = pane.findChild<QWebEngineView*>()->focusProxy();
  keys->setFocus();
  QTest::keyClick(keys, Qt::Key_Tab);
  QTest::keyClick(keys, Qt::Key_Backtab, Qt::ShiftModifier);
  QTest::keyClick(keys, Qt::Key_Escape);
  EXPECT_EQ(tabs, QList<QVariantList>({{true}, {false}}));
  EXPECT_EQ(escapes.count(), 1);
}

}  // namespace
}  // namespace quorvantis::test

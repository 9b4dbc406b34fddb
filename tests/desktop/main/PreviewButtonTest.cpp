// SPDX-License-Identifier: MIT
#include "desktop/WindowTest.h"
#include "preview/PreviewWindow.h"

#include <memory>

namespace quorvantis::test {
namespace {

using PreviewButton = WindowTest;

constexpr int kPatience = 20'000;  // milliseconds, for a browser on a slow machine

/// The visible preview, or null.
PreviewWindow* ShownPreview() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    auto* preview = qobject_cast<PreviewWindow*>(widget);
    if (preview != nullptr && preview->isVisible()) return preview;
  }
  return nullptr;
}

bool PageHolds(PreviewWindow& preview, const char* text) {
  const auto found = std::make_shared<bool>(false);  // a busy browser answers when nobody waits any more
  preview.findChild<QWebEngineView*>()->page()->toPlainText(
      [found, text](const QString& content) { *found = content.contains(text); });
  QTest::qWait(50);
  return *found;
}

/// Waits for a preview of a page with `text`.
bool Appears(const char* text) {
  return QTest::qWaitFor([] { return ShownPreview() != nullptr; }, kPatience) &&
         QTest::qWaitFor([text] { return PageHolds(*ShownPreview(), text); }, kPatience);
}

TEST_F(PreviewButton, ShowsTheExamUntilItIsFinished) {
  Open();
  Type("questionText", "What is on the picture?");
  world.dialogs.filesToOpen = {MakeFile("picture.jpg")};
  Click("attachToQuestion");
  Click("preview");
  ASSERT_TRUE(Appears("What is on the picture?"));

  // Left without finishing: paths on pages keep their prefix.
  QTest::keyClick(ShownPreview(), Qt::Key_Escape);
  ASSERT_TRUE(QTest::qWaitFor([] { return ShownPreview() == nullptr; }, kPatience));
  const std::u16string path = exam.Question(1).attachmentPaths[0];

  Click("preview");
  ASSERT_TRUE(Appears("What is on the picture?"));
  EXPECT_EQ(exam.PathOnPages(path), path.substr(0, 3) + path.substr(0, 3) + path);
  ShownPreview()->findChild<QWebEngineView*>()->page()->runJavaScript(
      "document.querySelector('input[type=button]').click()");
  ASSERT_TRUE(QTest::qWaitFor([] { return ShownPreview() == nullptr; }, kPatience));
  EXPECT_EQ(exam.PathOnPages(path), path.substr(0, 3) + path) << "a finished exam takes one prefix off";
}

/// The question would appear behind the preview, where nobody can see it.
TEST_F(PreviewButton, IsGoneBeforeClosingAsksAboutChanges) {
  Open();
  Type("questionText", "Not saved yet");
  Click("preview");
  ASSERT_TRUE(Appears("Not saved yet"));
  world.dialogs.answers = {SaveAnswer::Cancel};
  EXPECT_FALSE(window->close());
  EXPECT_EQ(ShownPreview(), nullptr);
  EXPECT_TRUE(world.dialogs.answers.empty()) << "the question was not asked";
}

/// The setup stays open below the preview that it opened.
TEST_F(PreviewButton, WorksBesideTheScoreSetup) {
  exam.Question(1).text = u"Worth how much?";
  Open();
  ClickAndUse("scoreSetup", [](QDialog& setup) {
    const auto click = [&](const char* name) {
      QTest::mouseClick(setup.findChild<QAbstractButton*>(name), Qt::LeftButton);
    };
    click("scanQuestions");
    EXPECT_TRUE(Appears("Worth how much?"));
    QTest::keyClick(ShownPreview(), Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([] { return ShownPreview() == nullptr; }, kPatience));
    EXPECT_TRUE(setup.isVisible());
    click("scanQuestions");
    EXPECT_TRUE(Appears("Worth how much?"));
    click("ok");
  });
  EXPECT_EQ(ShownPreview(), nullptr) << "a preview that was left open goes with the setup";
  EXPECT_TRUE(window->isVisible());
}

}  // namespace
}  // namespace quorvantis::test

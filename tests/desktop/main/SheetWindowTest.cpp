// SPDX-License-Identifier: MIT
#include "desktop/WindowTest.h"
#include "platform/programs/PopplerPdfText.h"

#include <QWebEngineView>

#include <optional>

namespace quorvantis::test {
namespace {

class SheetWindow : public WindowTest {
 protected:
  static constexpr int kLongest = 60'000;  // milliseconds, for a browser on a slow machine

  /// The preview on the screen, or null.
  static PreviewWindow* Shown() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      auto* const preview = qobject_cast<PreviewWindow*>(widget);
      if (preview != nullptr && preview->IsOnScreen()) return preview;
    }
    return nullptr;
  }

  /// What a script in the shown page returns; invalid without a page.
  static QVariant Evaluate(const QString& script) {
    const auto answer = std::make_shared<std::optional<QVariant>>();
    if (Shown() == nullptr) return {};
    Shown()->findChild<QWebEngineView*>()->page()->runJavaScript(
        script, [answer](const QVariant& value) { *answer = value; });
    return QTest::qWaitFor([&] { return answer->has_value(); }, 5000) ? **answer : QVariant();
  }

  bool ShowsSheet(const char* entry, const QString& condition) {
    Entry(entry).trigger();
    return QTest::qWaitFor([&] { return Evaluate(condition).toBool(); }, kLongest);
  }
};

TEST_F(SheetWindow, ASheetIsShownAndSavedFromItsButtons) {
  ExamQuestion& question = exam.Question(1);
  question.text = u"Which one?";
  question.options = {u"this", u"that"};
  question.answerLetters = u"b";
  question.answerMask = 8;
  Open();
  ASSERT_TRUE(ShowsSheet("sheetKey", "document.querySelector('.letters')?.textContent === 'B'"));
  const auto target = folder / "key.pdf";
  world.dialogs.filesToSave = {target};
  Evaluate("document.querySelectorAll('.buttons input')[1].click()");
  const auto written = [&] { return window->findChild<QDialog*>("pdfWritten") != nullptr; };
  ASSERT_TRUE(QTest::qWaitFor(written, kLongest));
  EXPECT_EQ(Shown(), nullptr);
  const PdfPages text = PopplerPdfText().Read(target);
  ASSERT_EQ(text.pages.size(), 1U);
  EXPECT_NE(text.pages[0].find(u"1 / 1"), std::u16string::npos);
  EXPECT_FALSE(ShowsChange());
}

TEST_F(SheetWindow, LargePrintStaysChosenAndCloseLeaves) {
  exam.Question(1).text = u"Which one?";
  Open();
  Entry("sheetLarge").trigger();
  EXPECT_TRUE(Entry("sheetLarge").isChecked());
  ASSERT_TRUE(
      ShowsSheet("sheetPaper", "document.body.className === 'large' && document.readyState === 'complete'"));
  Evaluate("document.querySelectorAll('.buttons input')[2].click()");
  EXPECT_TRUE(QTest::qWaitFor([] { return Shown() == nullptr; }, kLongest));
  EXPECT_TRUE(exam.previewPrefixes.empty());
}

}  // namespace
}  // namespace quorvantis::test

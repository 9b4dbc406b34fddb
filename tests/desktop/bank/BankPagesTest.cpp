// SPDX-License-Identifier: MIT
#include "BankWindowTest.h"
#include "desktop/bank/BankQuestionPane.h"
#include "editor/WorkCopies.h"

#include <QWebEngineScript>
#include <QWebEngineView>

#include <optional>
#include <random>

namespace quorvantis::test {
namespace {

class BankPagesTest : public BankWindowTest {
 protected:
  static constexpr int kLongest = 60'000;  // milliseconds, for a browser on a slow machine

  fs::path MakePicture(const char* name) {
    QImage picture(30, 20, QImage::Format_RGB32);
    picture.fill(Qt::red);
    EXPECT_TRUE(picture.save(PathToQString(folder / name)));
    return folder / name;
  }
  QWebEngineView* Browser() { return Control("bankWindow").findChild<QWebEngineView*>(); }
  void Choose(int row) {
    auto& list = Control<QListView>("bankHits");
    list.setCurrentIndex(list.model()->index(row, 0));
  }
  void ChooseView(int tab) { window->findChild<BankQuestionPane*>()->setCurrentIndex(tab); }

  QVariant InPage(const QString& script) {
    const auto found = std::make_shared<std::optional<QVariant>>();
    if (Browser() == nullptr) return {};
    Browser()->page()->runJavaScript(script, QWebEngineScript::ApplicationWorld,
                                     [found](const QVariant& value) { *found = value; });
    return QTest::qWaitFor([&] { return found->has_value(); }, 5000) ? **found : QVariant();
  }
  bool PageShows(const QString& condition) {
    return QTest::qWaitFor([&] { return InPage(condition).toBool(); }, kLongest);
  }
  /// The page has come that belongs to the chosen row.
  bool PageFollows() {
    const QString row = Control<QListView>("bankHits").currentIndex().data(Qt::DisplayRole).toString();
    const QString text = row.section(": ", -1);
    return PageShows("document.querySelector('.body .text')?.textContent === '" + text + "'");
  }
  bool NoticeIs(const QString& part) {
    auto& notice = Control<QLabel>("bankPageNotice");
    return QTest::qWaitFor([&] { return notice.isVisible() && notice.text().contains(part); }, kLongest);
  }
  /// How many folders there are for questions that are looked at.
  int Folders() {
    int count = 0;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(AttachmentWorkRoot(services.applicationFolder), error))
      count += entry.path().filename().string().starts_with(".looked-at-");
    return count;
  }
};

TEST_F(BankPagesTest, ShowsTheChosenQuestionWithItsPicturesWhileItIsThere) {
  const fs::path cells =
      WriteExam("cells.exm", {u"What is <b>mitosis</b>?", u"What is a cell?"}, MakePicture("cell.png"));
  OpenBank();
  Find("mitosis", 1);
  EXPECT_EQ(Browser(), nullptr) << "a browser takes time and memory";
  ChooseView(1);
  ASSERT_TRUE(PageShows("document.querySelector('.body .text b')?.textContent === 'mitosis'"));
  EXPECT_TRUE(PageShows("document.querySelector('img').naturalWidth === 30"));
  EXPECT_EQ(InPage("document.querySelector('.number').textContent").toString(), "1.");
  EXPECT_EQ(Folders(), 1);
  Find("what", 2);
  Choose(1);
  ASSERT_TRUE(PageFollows());
  fs::remove(cells);
  Choose(0);
  EXPECT_TRUE(NoticeIs(PathToQString(cells)));
  EXPECT_EQ(Folders(), 0);
}

TEST_F(BankPagesTest, TellsWhenTheFileHasAnotherQuestionThere) {
  WriteExam("cells.exm", {u"What is mitosis?", u"What is a cell?"});
  OpenBank();
  Find("", 2);
  ChooseView(1);
  ASSERT_TRUE(PageFollows());
  WriteExam("cells.exm", {u"Do birds fly?", u"Do fish swim?"});
  Choose(Control<QListView>("bankHits").currentIndex().row() == 0 ? 1 : 0);
  EXPECT_TRUE(NoticeIs("2455"));
}

TEST_F(BankPagesTest, FollowsTheUserAtAnyMoment) {
  std::vector<std::u16string> texts;
  for (int i = 0; i < 12; ++i) texts.push_back(QString("question %1").arg(i).toStdU16String());
  WriteExam("many.exm", texts, MakePicture("cell.png"));
  OpenBank();
  Find("", 12);
  ChooseView(1);
  ASSERT_TRUE(PageFollows());
  std::minstd_rand random(11);
  const auto pause = [&random] { QTest::qWait(static_cast<int>(random() % 250)); };
  for (int i = 0; i < 50; ++i) {
    Choose(static_cast<int>(random() % 12));
    pause();
    if (i % 7 == 3) ChooseView(static_cast<int>(random() % 2));
    if (i % 10 == 4) {
      QTest::keyClick(&Control("bankWindow"), Qt::Key_Escape);
      pause();
      EXPECT_LE(Folders(), 1);
      Entry("examBank").trigger();
      ASSERT_TRUE(QTest::qWaitFor([this] { return Found() == 12; }, 20'000));
    }
  }
  ChooseView(1);
  ASSERT_TRUE(PageFollows());
  EXPECT_LE(Folders(), 1);
  Control<QDialog>("bankWindow").reject();
  EXPECT_TRUE(QTest::qWaitFor([this] { return Folders() == 0; }, kLongest));
  Entry("examBank").trigger();
  EXPECT_TRUE(PageFollows());
  window.reset();
  EXPECT_EQ(Folders(), 0);
}

TEST_F(BankPagesTest, TheViewStaysChosenAndTheKeyboardFree) {
  WriteExam("cells.exm", {u"What is mitosis?"});
  OpenBank();
  Find("", 1);
  ChooseView(1);
  ASSERT_TRUE(PageFollows());
  QWidget* const keys = Browser()->focusProxy();
  keys->setFocus();
  QTest::keyClick(keys, Qt::Key_Escape);
  EXPECT_TRUE(Control("bankWindow").isVisible());
  EXPECT_TRUE(Control("bankHits").hasFocus());
  keys->setFocus();
  QTest::keyClick(keys, Qt::Key_Tab);
  QWidget* const below = QApplication::focusWidget();
  ASSERT_TRUE(below != nullptr && Control("bankWindow").isAncestorOf(below));
  EXPECT_GT(below->mapToGlobal(QPoint()).y(), Browser()->mapToGlobal(QPoint()).y())
      << below->objectName().toStdString();
  QTest::keyClick(below, Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(keys->hasFocus());
  QTest::keyClick(keys, Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(Control("bankViews").hasFocus());
  window.reset();
  Open();
  Entry("examBank").trigger();
  Find("", 1);
  EXPECT_TRUE(PageFollows());
}

}  // namespace
}  // namespace quorvantis::test

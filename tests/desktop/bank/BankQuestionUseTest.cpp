// SPDX-License-Identifier: MIT
#include "BankWindowTest.h"
#include "desktop/controls/QuestionDrag.h"
#include "desktop/overview/OverviewWindow.h"
#include "platform/programs/PopplerPdfText.h"
#include "platform/texts/AskedTexts.h"

#include <QDropEvent>
#include <QWebEngineView>

#include <optional>

namespace quorvantis::test {
namespace {

class BankQuestionUse : public BankWindowTest {
 protected:
  static constexpr int kLongest = 60'000;  // milliseconds, for a browser on a slow machine

  void OpenWithQuestions(int count) {
    for (int n = 1; n <= count; ++n) exam.Question(n).text = QString("mine %1").arg(n).toStdU16String();
    exam.CountQuestions();
    OpenBank();
  }
  std::vector<std::u16string> Texts() {
    std::vector<std::u16string> texts;
    for (int n = 1; n <= QuestionCount(); ++n) texts.push_back(exam.Question(n).text);
    return texts;
  }

  void Drop(QWidget& over, const QPoint& position) {
    QuestionDrag data(Control<BankHitsView>("bankHits").Dragged());
    QDragEnterEvent enter(position, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&over, &enter);
    ASSERT_TRUE(enter.isAccepted());
    QDragMoveEvent move(position, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&over, &move);
    QDropEvent drop(position, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&over, &drop);
    EXPECT_TRUE(drop.isAccepted());
    Turn();
  }
};

TEST_F(BankQuestionUse, ADroppedQuestionComesWhereItIsDropped) {
  WriteExam("cells.exm", {u"What is mitosis?"});
  OpenWithQuestions(3);
  Find("mitosis", 1);
  QTest::keyClick(window.get(), Qt::Key_L, Qt::ControlModifier);
  auto* const table = window->findChild<OverviewTable*>();
  ASSERT_TRUE(QTest::qWaitFor([table] { return table->model()->rowCount() >= 3; }));
  const std::vector<std::u16string> before = Texts();
  const struct {
    int row;  ///< it is dropped on the upper half of this one
    int number;
  } rows[] = {{0, 1}, {1, 2}, {2, 3}, {99, 4}};
  for (const auto& [row, number] : rows) {
    const QModelIndex at = table->model()->index(row, OverviewModel::Text);
    const QRect place = table->visualRect(at);
    Drop(*table->viewport(),
         at.isValid() ? place.topLeft() + QPoint(5, 2) : QPoint(5, table->viewport()->height() - 2));
    ASSERT_EQ(QuestionCount(), 4) << row;
    EXPECT_EQ(exam.Question(number).text, u"What is mitosis?") << row;
    Entry("editUndo").trigger();
    ASSERT_EQ(Texts(), before) << "one step";
    QTest::qWait(50);
  }
}

TEST_F(BankQuestionUse, DroppedOnTheMainWindowItFollowsTheShownQuestion) {
  WriteExam("cells.exm", {u"What is mitosis?"});
  OpenWithQuestions(3);
  Find("mitosis", 1);
  for (const char* over : {"clientArea", "questionText", "optionA"}) {
    Drop(Control(over), {5, 5});
    ASSERT_EQ(QuestionCount(), 4) << over;
    EXPECT_EQ(exam.Question(2).text, u"What is mitosis?") << over;
    Entry("editUndo").trigger();
  }
}

TEST_F(BankQuestionUse, SelectedQuestionsComeInOneStepOrNotAtAll) {
  WriteExam("cells.exm", {u"What is mitosis?", u"Why is mitosis?"});
  const fs::path picture = WriteBytes(folder / "cell.png", "a picture");
  WriteExam("other.exm", {u"Where is mitosis?"}, picture);
  OpenWithQuestions(3);
  const std::vector<std::u16string> before = Texts();
  Find("mitosis", 3);
  auto& list = Control<QListView>("bankHits");
  const QString apart = "[" + QString::number(text_id::kBankExamApart);
  EXPECT_TRUE(list.model()->index(0, 0).data().toString().contains(apart)) << "both exams have one title";
  list.selectAll();
  Click("bankInsert");
  ASSERT_EQ(QuestionCount(), 6);
  Entry("editUndo").trigger();
  EXPECT_EQ(Texts(), before);
  list.selectAll();
  Drop(Control("clientArea"), {5, 5});
  ASSERT_EQ(QuestionCount(), 6);
  Entry("editUndo").trigger();
  WriteBytes(picture, "another picture");
  WriteExam("other.exm", {u"Where is mitosis?"}, picture);
  list.selectAll();
  Click("bankInsert");
  EXPECT_EQ(Texts(), before);
  EXPECT_EQ(world.dialogs.errors.size(), 1U);
}

TEST_F(BankQuestionUse, OpensItsExamUnlessTheUserStays) {
  const fs::path cells = WriteExam("cells.exm", {u"What is mitosis?", u"What is a cell?"});
  const fs::path mine = folder / "mine.exm";
  const struct {
    const char* what;
    SaveAnswer answer;
    bool isOpened, isSaved;
  } rows[] = {{"cancel", SaveAnswer::Cancel, false, false},
              {"no", SaveAnswer::No, true, false},
              {"yes", SaveAnswer::Yes, true, true}};
  OpenBank();
  Find("cell", 1);
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    fs::remove(mine);
    world.dialogs.answers = {SaveAnswer::No};
    Entry("fileNew").trigger();
    Type("title", "Changed");
    Turn();
    world.dialogs.answers = {row.answer};
    world.dialogs.filesToSave = {mine};
    Click("bankOpenExam");
    EXPECT_TRUE(world.dialogs.answers.empty()) << "asked once";
    EXPECT_EQ(window->Shows(cells), row.isOpened);
    EXPECT_EQ(fs::exists(mine), row.isSaved);
    EXPECT_EQ(Lines("questionText").toPlainText(), row.isOpened ? "What is a cell?" : "");
    world.dialogs.filesToSave.clear();
  }
  Type("questionText", "x");
  Turn();
  Control<QLineEdit>("bankWords").setText("mitosis");
  const auto isFound = [this] {
    return Control<QTextEdit>("bankQuestion").toPlainText().contains("mitosis");
  };
  ASSERT_TRUE(QTest::qWaitFor(isFound, 20'000));
  Click("bankOpenExam");
  EXPECT_TRUE(ShowsChange()) << "an open exam stays with its changes";
  EXPECT_EQ(Lines("questionText").toPlainText(), "What is mitosis?");
}

TEST_F(BankQuestionUse, AShownQuestionIsSavedAsAPdf) {
  WriteExam("cells.exm", {u"What is mitosis?"});
  OpenBank();
  Find("mitosis", 1);
  Click("bankShow");
  const auto shown = [] {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      auto* const preview = qobject_cast<PreviewWindow*>(widget);
      if (preview != nullptr && preview->IsOnScreen()) return preview;
    }
    return static_cast<PreviewWindow*>(nullptr);
  };
  ASSERT_NE(shown(), nullptr);
  const auto click = [&] {
    if (shown() != nullptr)
      shown()->findChild<QWebEngineView*>()->page()->runJavaScript(
          "document.querySelectorAll('.buttons input')[1]?.click()");
    QTest::qWait(100);
    return shown() == nullptr;
  };
  const fs::path target = folder / "question.pdf";
  world.dialogs.filesToSave = {target};
  ASSERT_TRUE(QTest::qWaitFor(click, kLongest));
  ASSERT_TRUE(
      QTest::qWaitFor([this] { return window->findChild<QDialog*>("pdfWritten") != nullptr; }, kLongest));
  EXPECT_EQ(world.dialogs.requests.back().initialName, u"Life - 1");
  const PdfPages text = PopplerPdfText().Read(target);
  ASSERT_EQ(text.pages.size(), 1U);
  EXPECT_NE(text.pages[0].find(u"mitosis"), std::u16string::npos);
}

}  // namespace
}  // namespace quorvantis::test

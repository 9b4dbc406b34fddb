// SPDX-License-Identifier: MIT
#include "bank/index/BankIndex.h"
#include "bank/tags/TagFile.h"
#include "desktop/WindowTest.h"
#include "desktop/bank/BankWindow.h"
#include "examfile/ExamFileWriter.h"
#include "platform/posix/FileLock.h"
#include "platform/texts/BankTexts.h"
#include "text/SeededRandom.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QElapsedTimer>
#include <QListView>

#include <atomic>
#include <map>
#include <random>
#include <set>
#include <thread>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

using TagsOfTexts = std::map<std::u16string, std::set<std::u16string>>;  // by the words of the question

class BankTagLineTest : public WindowTest {
 protected:
  BankTagLineTest() {
    for (const char* variable : {"XDG_CACHE_HOME", "XDG_DATA_HOME"})
      qputenv(variable, (folder.Path() / variable).string().c_str());
  }

  void WriteQuestions(const fs::path& file, const std::vector<std::u16string>& texts) {
    FrameSetExam other(services);
    for (std::size_t i = 0; i < texts.size(); ++i) {
      other.Question(static_cast<int>(i) + 1).text = texts[i];
      other.Question(static_cast<int>(i) + 1).options = {u"yes", u"no"};
    }
    other.CountQuestions();
    fs::create_directories((folder / file).parent_path());
    EXPECT_FALSE(ExamFileWriter(other, services).Write(folder / file));
  }

  /// Opens the window of the bank, and waits until it shows all questions.
  void OpenBank(int questions) {
    BankProblem problem;
    auto index = BankIndex::Open(UsualBankPlace(), files, problem);
    ASSERT_TRUE(index && !index->AddFolder(folder / "exams").IsAnything());
    Open();
    Entry("examBank").trigger();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Control<BankWindow>("bankWindow")));
    ASSERT_TRUE(WaitForRows(questions));
  }

  QListView& List() { return Control<QListView>("bankHits"); }
  bool WaitForRows(int rows) {
    return QTest::qWaitFor([this, rows] { return List().model()->rowCount() == rows; }, 20'000);
  }
  void Choose(int row) { List().setCurrentIndex(List().model()->index(row, 0)); }

  QLineEdit& AddLine() { return Control<QLineEdit>("bankTagAdd"); }
  void TypeTags(const QString& text) {
    AddLine().setText(text);
    QTest::keyClick(&AddLine(), Qt::Key_Return);
    Turn();
  }
  QList<QToolButton*> Chips() {
    QList<QToolButton*> chips = window->findChildren<QToolButton*>("bankTag");
    chips.removeIf([](const QToolButton* chip) { return chip->isHidden(); });
    return chips;
  }
  QStringList Shown() {
    QStringList tags;
    for (const QToolButton* chip : Chips()) tags.append(chip->property("tag").toString());
    return tags;
  }

  TagsOfTexts Written(const fs::path& where = "exams") {
    TagsOfTexts written;
    TagResult result;
    for (const auto& [key, entry] : TagFile(folder / where, files).Read(result))
      if (!entry.tags.empty()) written[entry.words] = {entry.tags.begin(), entry.tags.end()};
    return written;
  }
  bool WaitFor(const TagsOfTexts& expected, const fs::path& where = "exams") {
    return QTest::qWaitFor([&] { return Written(where) == expected; }, 20'000);
  }
  bool WaitForNotice(const char* name) {
    return QTest::qWaitFor([&] { return Control(name).isVisible(); }, 20'000);
  }
};

TEST_F(BankTagLineTest, AddsRemovesAndPutsBack) {
  WriteQuestions("exams/a.exm", {u"What is a cell?"});
  OpenBank(1);
  TypeTags("  Mitosis, cell  wall\u060C class:8b");
  EXPECT_EQ(Shown(), (QStringList{"Mitosis", "cell wall", "class:8b"})) << "before it is written";
  Turn();
  for (const QToolButton* chip : Chips())
    EXPECT_FALSE(chip->geometry().intersects(AddLine().geometry())) << chip->text().toStdString();
  ASSERT_TRUE(WaitFor({{u"What is a cell?", {u"Mitosis", u"cell wall", u"class:8b"}}}));
  TypeTags("MITOSIS");
  QTest::keyClick(&AddLine(), Qt::Key_Backspace);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
  ASSERT_TRUE(WaitFor({{u"What is a cell?", {u"Mitosis", u"class:8b"}}}));
  QTest::mouseClick(Chips().first(), Qt::LeftButton);
  ASSERT_TRUE(WaitFor({{u"What is a cell?", {u"class:8b"}}}));
  EXPECT_EQ(Shown(), QStringList{"class:8b"});
  ASSERT_TRUE(WaitForNotice("bankTagUndo"));
  Click("bankTagUndo");
  ASSERT_TRUE(WaitFor({{u"What is a cell?", {u"Mitosis", u"class:8b"}}}));
  Press("bankTagAdd", Qt::Key_Z, Qt::ControlModifier);
  ASSERT_TRUE(WaitFor({{u"What is a cell?", {u"Mitosis", u"cell wall", u"class:8b"}}}));
  TypeTags(QString(101, 'x'));
  EXPECT_TRUE(Control("bankTagProblem").isVisible());
  EXPECT_EQ(AddLine().text().size(), 101) << "nothing typed is lost";
}

/// The button stays when the choice moves, but not without a word: it would seem to belong to what is chosen
/// now.
TEST_F(BankTagLineTest, NamesTheQuestionThatUndoIsAboutUnlessItIsChosen) {
  WriteQuestions("exams/a.exm", {u"What is a cell?", u"Do birds fly?"});
  OpenBank(2);
  Choose(0);
  TypeTags("\"Smith, J.\"");
  ASSERT_TRUE(WaitForNotice("bankTagUndo"));
  EXPECT_EQ(Shown(), QStringList{"Smith, J."});
  const QString named = "[" + QString::number(text_id::kBankUndoElsewhere);
  const auto isNamed = [&] { return Control<QPushButton>("bankTagUndo").text().startsWith(named); };
  EXPECT_FALSE(isNamed());
  Choose(1);
  EXPECT_TRUE(isNamed());
  List().selectAll();
  EXPECT_FALSE(isNamed());
  Choose(1);
  Click("bankTagUndo");
  EXPECT_TRUE(WaitFor({}));
}

TEST_F(BankTagLineTest, CompletesFromAllFolders) {
  WriteQuestions("exams/a.exm", {u"What is a cell?"});
  WriteQuestions("exams/deep/b.exm", {u"Do birds fly?"});
  const std::string key(32, 'a');
  ASSERT_TRUE(
      TagFile(folder / "exams/deep", files).Change({{key, u"", {}, {u"Photosynthesis"}, {}}}).IsDone());
  OpenBank(2);
  Control<QLineEdit>("bankWords").setText("cell");
  ASSERT_TRUE(WaitForRows(1));
  AddLine().setFocus();
  ASSERT_TRUE(QTest::qWaitFor([this] { return AddLine().completer()->model()->rowCount() == 1; }, 20'000));
  QTest::keyClicks(&AddLine(), "SYNTH");
  QWidget* list = AddLine().completer()->popup();
  ASSERT_TRUE(QTest::qWaitFor([list] { return list->isVisible(); }));
  QTest::keyClick(list, Qt::Key_Down);
  QTest::keyClick(list, Qt::Key_Return);
  ASSERT_TRUE(WaitFor({{u"What is a cell?", {u"Photosynthesis"}}}));
  EXPECT_EQ(AddLine().text(), "");
}

/// Random work of a teacher, while another program gives tags to the same questions.
TEST_F(BankTagLineTest, WritesWhatIsShownBesideAnotherProgram) {
  const std::vector<std::u16string> texts{
      u"What is a cell?", u"\u4EC0\u4E48\u662F\u7EC6\u80DE\uFF1F",
      u"\u0645\u0627 \u0647\u064A \u0627\u0644\u062E\u0644\u064A\u0629\u061F"};
  const char16_t* tags[] = {u"cell", u"\u7EC6\u80DE", u"\u062E\u0644\u064A\u0629", u"class:8b"};
  WriteQuestions("exams/a.exm", texts);
  OpenBank(3);
  std::map<int, std::u16string> textOfRow;
  for (int row = 0; row < 3; ++row) {
    Choose(row);
    textOfRow[row] = FromQString(Control<QTextEdit>("bankQuestion").toPlainText().section('\n', 0, 0));
  }
  // Every question gets a tag, so that the file knows all keys.
  List().selectAll();
  TypeTags("all");
  TagsOfTexts expected;
  for (const std::u16string& text : texts) expected[text] = {u"all"};
  ASSERT_TRUE(WaitFor(expected));

  std::atomic_bool isOver = false;
  std::atomic_int others = 0;
  std::thread other([&] {
    PosixFiles own;
    TagFile file(folder / "exams", own);
    TagResult result;
    const TagEntries entries = file.Read(result);
    while (!isOver) {
      std::vector<TagChange> changes;
      for (const auto& [key, entry] : entries)
        changes.push_back({key,
                           entry.words,
                           {},
                           {u"other:" + std::u16string(1, static_cast<char16_t>(u'A' + others % 26))},
                           {}});
      if (file.Change(changes).IsDone()) ++others;
      std::this_thread::sleep_for(std::chrono::milliseconds(7));
    }
  });
  SeededRandom random(5);
  for (int i = 0; i < 60; ++i) {
    const int row = static_cast<int>(random.Below(4));
    row == 3 ? List().selectAll() : Choose(row);
    const std::u16string tag = tags[random.Below(4)];
    const bool adds = random.Below(2) == 0;
    if (adds) {
      TypeTags(ToQString(tag));
    } else {
      const QList<QToolButton*> chips = Chips();
      for (QToolButton* chip : chips)
        if (FromQString(chip->property("tag").toString()) == tag) chip->click();
    }
    for (const auto& [each, text] : textOfRow) {
      if (row != 3 && row != each) continue;
      adds ? (void)expected[text].insert(tag) : (void)expected[text].erase(tag);
    }
    QTest::qWait(static_cast<int>(random.Below(25)));
  }
  isOver = true;
  other.join();
  EXPECT_GT(others, 3);
  for (auto& [text, own] : expected)
    for (int i = 0; i < std::min(others.load(), 26); ++i)
      own.insert(u"other:" + std::u16string(1, static_cast<char16_t>(u'A' + i)));
  EXPECT_TRUE(WaitFor(expected));
}

TEST_F(BankTagLineTest, TellsWhatIsNotWrittenAndTriesAgain) {
  WriteQuestions("exams/a.exm", {u"What is a cell?", u"Do birds fly?"});
  const fs::path file = WriteBytes(folder / "exams" / kTagFileName, "{");
  OpenBank(2);
  const std::u16string first =
      FromQString(Control<QTextEdit>("bankQuestion").toPlainText().section('\n', 0, 0));
  TypeTags("cell");
  ASSERT_TRUE(WaitForNotice("bankTagProblem"));
  EXPECT_EQ(ReadBytes(file), "{") << "it is left as it is";
  EXPECT_EQ(Shown(), QStringList());
  Choose(1);
  EXPECT_TRUE(Control("bankTagProblem").isVisible()) << "it is not forgotten";
  Click("bankTagProblemDo");
  ASSERT_TRUE(WaitFor({{first, {u"cell"}}}));
  EXPECT_EQ(ReadBytes(folder / "exams" / "quorvantis-tags.damaged-1.json"), "{");
  ASSERT_TRUE(QTest::qWaitFor([this] { return !Control("bankTagProblemDo").isVisible(); }, 20'000));

  fs::remove(file);
  fs::create_directory(file);
  TypeTags("bird");
  ASSERT_TRUE(QTest::qWaitFor([this] { return Control("bankTagProblemDo").isVisible(); }, 20'000));
  fs::remove(file);
  Click("bankTagProblemDo");
  ASSERT_TRUE(
      QTest::qWaitFor([this] { return Written().size() == 1 && !Control("bankTagProblem").isVisible(); }));
}

TEST_F(BankTagLineTest, WaitsForAnotherProgramWithoutStopping) {
  WriteQuestions("exams/a.exm", {u"What is a cell?"});
  const fs::path file = WriteBytes(folder / "exams" / kTagFileName, "{}");
  OpenBank(1);
  std::error_code error;
  auto lock = FileLock::Take(file, std::chrono::milliseconds(0), error);
  ASSERT_TRUE(lock);
  QElapsedTimer time;
  time.start();
  TypeTags("one");
  TypeTags("two");
  EXPECT_EQ(Shown(), (QStringList{"one", "two"}));
  QTest::qWait(300);
  EXPECT_LT(time.elapsed(), 5'000);
  EXPECT_TRUE(Written().empty());
  lock.reset();
  EXPECT_TRUE(WaitFor({{u"What is a cell?", {u"one", u"two"}}}));
}

TEST_F(BankTagLineTest, OffersTheTagsOfAnEarlierVersion) {
  const std::u16string text = u"Which of these metals conducts electricity best at room temperature";
  WriteQuestions("exams/a.exm", {text});
  OpenBank(1);
  TypeTags("metals, class:8b");
  ASSERT_TRUE(WaitFor({{text, {u"metals", u"class:8b"}}}));
  WriteQuestions("exams/a.exm", {text + u" today"});
  Control<QLineEdit>("bankWords").setText("today");
  ASSERT_TRUE(WaitForNotice("bankEarlierTags"));
  EXPECT_EQ(Shown(), QStringList());
  Click("bankEarlierTagsDo");
  EXPECT_FALSE(Control("bankEarlierTags").isVisible());
  EXPECT_EQ(Shown(), (QStringList{"class:8b", "metals"}));
  EXPECT_TRUE(QTest::qWaitFor([this] { return Written().size() == 2; }, 20'000))
      << "those of the old one stay";
}

TEST_F(BankTagLineTest, SearchesForTagsInTheLanguage) {
  WriteQuestions("exams/a.exm", {u"What is a cell?", u"Do birds fly?"});
  WriteQuestions("exams/deep/b.exm", {u"What is a cell?"});
  OpenBank(3);
  List().selectAll();
  TypeTags("life");
  ASSERT_TRUE(QTest::qWaitFor(
      [this] { return Written("exams").size() == 2 && Written("exams/deep").size() == 1; }, 20'000));
  auto& words = Control<QLineEdit>("bankWords");
  words.setText("-bird tag:LI");
  ASSERT_TRUE(WaitForRows(2));
  Choose(0);
  EXPECT_EQ(Shown(), QStringList{"life"});
  EXPECT_TRUE(List().currentIndex().data().toString().contains("life"));
  words.setText("-has:tags");
  ASSERT_TRUE(WaitForRows(0));
  EXPECT_FALSE(AddLine().isEnabled());
}

/// What was asked for is written, whenever the window closes.
TEST_F(BankTagLineTest, LosesNothingWhenItIsClosed) {
  WriteQuestions("exams/a.exm", {u"What is a cell?"});
  OpenBank(1);
  std::minstd_rand random(7);
  std::set<std::u16string> given;
  for (int i = 0; i < 50; ++i) {
    const QString tag = "tag" + QString::number(i);
    given.insert(FromQString(tag));
    TypeTags(tag);
    QTest::qWait(static_cast<int>(random() % 20));
    QTest::keyClick(&Control("bankWindow"), Qt::Key_Escape);
    QTest::qWait(static_cast<int>(random() % 20));
    Entry("examBank").trigger();
    ASSERT_TRUE(QTest::qWaitFor([this] { return AddLine().isEnabled(); }, 20'000));
  }
  TypeTags("the last");
  given.insert(u"the last");
  window.reset();
  EXPECT_EQ(Written(), (TagsOfTexts{{u"What is a cell?", given}}));
}

}  // namespace
}  // namespace quorvantis::test

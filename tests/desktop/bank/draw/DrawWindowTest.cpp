// SPDX-License-Identifier: MIT
#include "bank/index/BankIndex.h"
#include "bank/search/DrawableQuestions.h"
#include "bank/tags/TagFile.h"
#include "desktop/WindowTest.h"
#include "desktop/bank/draw/DrawWindow.h"
#include "examfile/ExamFileWriter.h"
#include "platform/texts/BankTexts.h"
#include "platform/texts/DrawTexts.h"

#include <QComboBox>
#include <QDateEdit>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPlainTextEdit>
#include <QProcess>
#include <QSpinBox>

#include <chrono>
#include <map>
#include <random>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

constexpr int kDrawPatience = 30'000;  // milliseconds

/// What a question asks, what is right, and the bytes of its files.
std::string ContentOfQuestion(const ExamQuestion& question) {
  std::string content;
  for (const std::u16string& text : {question.text, question.options[0], question.options[1],
                                     question.answerLetters, question.answerText, question.essayAnswer})
    content += ToQString(text).toStdString() + "|";
  for (const std::u16string& path : question.attachmentPaths) {
    if (!path.empty()) content += ReadBytes(TextToPath(path)) + "|";
  }
  return content;
}

class DrawWindowTest : public WindowTest {
 protected:
  DrawWindowTest() {
    for (const char* variable : {"XDG_CACHE_HOME", "XDG_DATA_HOME"})
      qputenv(variable, (folder.Path() / variable).string().c_str());
    fs::create_directories(exams);
  }
  ~DrawWindowTest() override { QApplication::setLayoutDirection(Qt::LeftToRight); }

  fs::path WriteExam(const fs::path& file, const std::vector<ExamQuestion>& questions) {
    FrameSetExam other(services);
    other.title = PathToText(file.stem());
    for (std::size_t i = 0; i < questions.size(); ++i) other.Question(static_cast<int>(i) + 1) = questions[i];
    other.CountQuestions();
    fs::create_directories(file.parent_path());
    EXPECT_FALSE(ExamFileWriter(other, services).Write(file));
    return file;
  }

  ExamQuestion RandomQuestion() {
    ExamQuestion question;
    for (int i = 0; i < 8; ++i) question.text += RandomWord() + u" ";
    question.kind = static_cast<QuestionKind>(random() % 3);
    if (question.kind == QuestionKind::Choice) {
      question.options = {RandomWord(), RandomWord()};
      question.answerLetters = random() % 2 == 0 ? u"a" : u"b";
    }
    if (question.kind == QuestionKind::FillIn) question.answerText = RandomWord();
    if (question.kind == QuestionKind::Essay) question.essayAnswer = RandomWord();
    if (random() % 4 == 0) {
      const std::string name = "file" + std::to_string(random() % 5) + ".png";
      const fs::path file = WriteBytes(folder / name, name);
      question.attachmentPaths[0] = PathToText(file);
      question.attachmentNames[0] = PathToText(file.filename());
    }
    written[question.text] = ContentOfQuestion(question);
    return question;
  }

  std::u16string RandomWord() {
    std::u16string word;
    for (int i = 0; i < 6; ++i) word += static_cast<char16_t>(u'a' + random() % 26);
    return word;
  }

  /// Exams in two folders, some old, with tags x, y and z.
  void WriteBank(int count) {
    for (int i = 0; i < count; ++i) {
      const fs::path file = exams / (i % 3 == 0 ? "old" : "new") / ("exam" + std::to_string(i) + ".exm");
      WriteExam(file, {RandomQuestion(), RandomQuestion(), RandomQuestion(), RandomQuestion()});
      if (i % 3 == 0) fs::last_write_time(file, fs::last_write_time(file) - std::chrono::hours(24 * 900));
    }
  }

  void OpenDraw(bool hasFolder = true) {
    if (hasFolder) {
      BankProblem problem;
      auto index = BankIndex::Open(UsualBankPlace(), files, problem);
      ASSERT_TRUE(index && !index->AddFolder(exams).IsAnything());
    }
    if (!window) Open();
    Entry("examDraw").trigger();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Control<DrawWindow>("drawWindow")));
  }

  /// Gives each question of the bank tags at random.
  void TagBank() {
    BankProblem problem;
    auto index = BankIndex::Open(UsualBankPlace(), files, problem);
    ASSERT_TRUE(index);
    const DrawableQuestions drawable(*index, files);
    std::map<fs::path, std::vector<TagChange>> changes;
    for (std::size_t i = 0; i < drawable.Candidates().size(); ++i) {
      const auto question = drawable.Question(i);
      TagChange change{question->key, question->text, drawable.Candidates()[i].sketch, {}, {}};
      for (const char16_t* tag : {u"x", u"y", u"z"}) {
        if (random() % 2 == 0) change.add.emplace_back(tag);
      }
      changes[question->exam.path.parent_path()].push_back(change);
    }
    for (const auto& [place, ofFolder] : changes)
      EXPECT_TRUE(TagFile(place, files).Change(ofFolder).IsDone());
  }

  bool IsRunning() { return Control("drawCancel").isVisible(); }
  void Await() {
    EXPECT_TRUE(QTest::qWaitFor([this] { return !IsRunning(); }, kDrawPatience));
  }
  void Draw() {
    Click("drawNow");
    Await();
  }
  const DrawnList& Drawn() { return window->findChild<DrawnPane*>()->List(); }
  QString Status() { return Control<QLabel>("drawStatus").text(); }
  bool Says(int text) { return Status().startsWith("[" + QString::number(text) + " "); }

  std::vector<std::string> DrawnPlaces() {
    std::vector<std::string> places;
    for (const DrawnRow& row : Drawn().rows)
      places.push_back(row.question.exam.path.string() + ":" + std::to_string(row.question.number));
    return places;
  }

  void TypeWishes() {
    for (int wishes = static_cast<int>(random() % 3); wishes > 0; --wishes) Click("drawAddWish");
    const std::vector<const char*> tags{"", "", "x", "y, z", "x,y"};
    for (int i = 1; auto* count = window->findChild<QSpinBox*>("drawCount" + QString::number(i)); ++i) {
      const auto named = [i](const char* name) { return (name + std::to_string(i)); };
      count->setValue(static_cast<int>(1 + random() % 6));
      Control<QComboBox>(named("drawKind").c_str()).setCurrentIndex(static_cast<int>(random() % 4));
      Control<QLineEdit>(named("drawTags").c_str()).setText(tags[random() % tags.size()]);
      Control<QLineEdit>(named("drawWithout").c_str()).setText(random() % 4 == 0 ? "z" : "");
      Control<QLineEdit>(named("drawSpread").c_str()).setText(random() % 4 == 0 ? "x,y" : "");
    }
    Control<QComboBox>("drawUsed").setCurrentIndex(static_cast<int>(random() % 2));
    Control<QComboBox>("drawFolder").setCurrentIndex(random() % 4 == 0 ? 2 : 0);
    Click("drawNewSeed");
    while (random() % 2 == 0 && window->findChild<QWidget*>("drawCount2") != nullptr) {
      Click("drawRemoveWish1");
      Turn();
    }
  }

  std::string Saved() {
    const fs::path file = folder / "saved.exm";
    EXPECT_FALSE(ExamFileWriter(exam, services).Write(file));
    return ReadBytes(file);
  }
  std::vector<std::string> Contents() {
    exam.CountQuestions();
    std::vector<std::string> contents;
    for (int number = 1; number <= exam.LastCountedQuestion(); ++number)
      contents.push_back(ContentOfQuestion(exam.Question(number)));
    return contents;
  }

  const fs::path exams = fs::canonical(folder.Path()) / "exams";
  std::minstd_rand random{11};
  std::map<std::u16string, std::string> written;  ///< the content of each question of the bank, by its text
};

TEST_F(DrawWindowTest, InsertsWhatItShowsAsOneStep) {
  WriteBank(18);
  exam.Question(1).text = u"The first";
  exam.Question(2).text = u"The last";
  exam.CountQuestions();
  OpenDraw();
  Draw();
  EXPECT_TRUE(
      QTest::qWaitFor([this] { return Control<QComboBox>("drawFolder").count() > 3; }, kDrawPatience));
  TagBank();
  std::size_t inserted = 0;
  for (int round = 0; round < 25; ++round) {
    SCOPED_TRACE(round);
    TypeWishes();
    const std::size_t steps = Drawn().rows.size();
    Draw();
    EXPECT_TRUE(!Says(text_id::kDrawNothing) || Drawn().rows.size() == steps);
    if (Drawn().rows.empty()) continue;
    if (round % 3 == 0) QTest::keyClick(&Control("drawnList"), Qt::Key_Down, Qt::AltModifier);
    if (round % 4 == 0 && Drawn().rows.size() > 1) QTest::keyClick(&Control("drawnList"), Qt::Key_Delete);
    std::vector<std::string> expected;
    for (const DrawnRow& row : Drawn().rows) expected.push_back(written[row.question.text]);
    const std::string before = Saved();
    const std::vector<std::string> old = Contents();
    const QString seed = Control<QLineEdit>("drawSeed").text();
    Click("drawnInsert");
    EXPECT_NE(Control<QLineEdit>("drawSeed").text(), seed) << "or the next draw would bring the same again";
    ASSERT_TRUE(Drawn().rows.empty()) << Status().toStdString();
    std::vector<std::string> now = Contents();
    ASSERT_EQ(now.size(), old.size() + expected.size());
    const auto at = std::search(now.begin(), now.end(), expected.begin(), expected.end());
    ASSERT_TRUE(at != now.end()) << round;
    now.erase(at, at + static_cast<std::ptrdiff_t>(expected.size()));
    EXPECT_EQ(now, old);
    inserted += expected.size();
    Entry("editUndo").trigger();
    EXPECT_EQ(Saved(), before);
  }
  EXPECT_GT(inserted, 60U);
}

TEST_F(DrawWindowTest, DrawsWhatTheCommandDrawsAlsoLater) {
  WriteBank(18);
  OpenDraw();
  Draw();
  TagBank();
  exam.Question(1).text = Drawn().rows.front().question.text;  // never saved
  exam.Question(1).options = Drawn().rows.front().question.options;
  exam.Question(1).kind = Drawn().rows.front().question.kind;
  exam.CountQuestions();
  window.reset();
  const fs::path open = WriteExam(folder / "open.exm", {exam.Question(1)});
  OpenDraw();
  Control<QSpinBox>("drawCount1").setValue(7);
  Control<QComboBox>("drawKind1").setCurrentIndex(1);
  Control<QLineEdit>("drawTags1").setText("x");
  Control<QComboBox>("drawUsed").setCurrentIndex(1);
  Control<QDateEdit>("drawDay").setDate(QDate::currentDate().addDays(-1));
  Control<QLineEdit>("drawSeed").setText("2024");
  Draw();
  const std::vector<std::string> places = DrawnPlaces();
  ASSERT_FALSE(places.empty());
  window.reset();
  OpenDraw();
  Draw();
  EXPECT_EQ(DrawnPlaces(), places) << "after a restart";
  QProcess command;
  const QString since = QDate::currentDate().addDays(-1).toString(Qt::ISODate);
  command.start(QUORVANTIS_CLI,
                {"bank", "draw", "--count", "7", "--kind", "choice", "--tag", "x", "--seed", "2024",
                 "--unused-since", since, "--not-like", PathToQString(open), "--json"});
  ASSERT_TRUE(command.waitForFinished(kDrawPatience));
  std::vector<std::string> printed;
  for (const auto& question : QJsonDocument::fromJson(command.readAllStandardOutput())["questions"].toArray())
    printed.push_back(question.toObject()["exam"].toString().toStdString() + ":" +
                      std::to_string(question.toObject()["number"].toInt()));
  EXPECT_EQ(printed, places) << command.readAllStandardError().toStdString();
}

TEST_F(DrawWindowTest, ExchangesUntilNothingIsLeft) {
  WriteExam(exams / "a.exm", {RandomQuestion(), RandomQuestion(), RandomQuestion()});
  WriteExam(exams / "b.exm", {RandomQuestion(), RandomQuestion()});
  OpenDraw();
  Control<QSpinBox>("drawCount1").setValue(2);
  Draw();
  ASSERT_EQ(Drawn().rows.size(), 2U);
  std::set<std::string> seen;
  for (const std::string& place : DrawnPlaces()) seen.insert(place);
  const std::string kept = DrawnPlaces()[1];
  for (int left = 3; left > 0; --left) {
    QTest::keyClick(&Control("drawnList"), Qt::Key_R, Qt::ControlModifier);
    Await();
    EXPECT_TRUE(seen.insert(DrawnPlaces()[0]).second);
    EXPECT_EQ(DrawnPlaces()[1], kept);
  }
  Click("drawnExchange");
  Await();
  EXPECT_TRUE(Control("drawnList").hasFocus()) << "its keys go on where the button ended";
  EXPECT_TRUE(Says(text_id::kDrawNoOther));
  EXPECT_EQ(Drawn().rows.size(), 2U);
  for (int i = 0; i < 4; ++i) Click("drawnBack");
  EXPECT_TRUE(Drawn().rows.empty());
  EXPECT_FALSE(Control("drawnBack").isEnabled());
}

TEST_F(DrawWindowTest, KeepsWhatItsExamNoLongerHolds) {
  QApplication::setLayoutDirection(Qt::RightToLeft);
  const fs::path gone = WriteExam(exams / "a.exm", {RandomQuestion()});
  const fs::path other = WriteExam(exams / "b.exm", {RandomQuestion()});
  WriteExam(exams / "c.exm", {RandomQuestion()});
  OpenDraw();
  Control<QSpinBox>("drawCount1").setValue(3);
  Draw();
  ASSERT_EQ(Drawn().rows.size(), 3U);
  fs::remove(gone);
  WriteExam(other, {RandomQuestion()});
  Click("drawnInsert");
  EXPECT_EQ(Contents().size(), 1U);
  ASSERT_EQ(Drawn().rows.size(), 2U);
  EXPECT_TRUE(Drawn().rows[0].isGone && Drawn().rows[1].isGone);
  EXPECT_TRUE(Status().contains("[" + QString::number(text_id::kDrawStays))) << Status().toStdString();
  Click("drawnExchange");
  Await();
  ASSERT_EQ(Drawn().rows.size(), 2U);
  EXPECT_EQ(Drawn().rows[0].question.exam.path, other) << "neither the inserted one nor the one that is gone";
  Click("drawnInsert");
  EXPECT_EQ(Contents().size(), 2U);
}

TEST_F(DrawWindowTest, TellsWhyNothingComes) {
  OpenDraw(false);
  Draw();
  EXPECT_TRUE(Says(text_id::kDrawNoFolders));
  OpenDraw();
  Draw();
  EXPECT_TRUE(Says(text_id::kDrawNothing));
  WriteExam(exams / "a.exm", {RandomQuestion()});
  WriteBytes(UsualBankPlace().index, std::string(20'000, 'x'));
  for (const char* rest : {"-wal", "-shm"}) fs::remove(UsualBankPlace().index.string() + rest);
  Draw();
  EXPECT_EQ(Drawn().rows.size(), 1U) << Status().toStdString();
  WriteBytes(exams / kTagFileName, "{");
  Draw();
  EXPECT_TRUE(Control<QPlainTextEdit>("drawReport")
                  .toPlainText()
                  .contains("[" + QString::number(text_id::kTagsDamaged)));
  Control<QLineEdit>("drawTags1").setText(QString(101, 'x'));
  Draw();
  EXPECT_TRUE(Says(text_id::kDrawBadTag));
  Control<QLineEdit>("drawSeed").setText("18446744073709551616");
  Control<QLineEdit>("drawTags1").clear();
  Draw();
  EXPECT_TRUE(Says(text_id::kDrawBadSeed));
  EXPECT_EQ(Drawn().rows.size(), 1U);
}

TEST_F(DrawWindowTest, IsCancelledAndClosedAtAnyMoment) {
  WriteBank(30);
  OpenDraw();
  const auto pause = [this] { QTest::qWait(static_cast<int>(random() % 40)); };
  for (int i = 0; i < 50; ++i) {
    Click("drawNow");
    pause();
    if (i % 2 == 0) Control<QAbstractButton>(i % 4 == 0 ? "drawCancel" : "drawnExchange").click();
    if (i % 3 == 0) QTest::keyClick(&Control("drawWindow"), Qt::Key_Escape);
    pause();
    if (i % 5 == 0) Control<DrawWindow>("drawWindow").close();
    if (i % 7 == 0) fs::last_write_time(exams / "new" / "exam1.exm", fs::file_time_type::clock::now());
    if (i % 16 == 15) window.reset();
    OpenDraw(false);
  }
  Await();
  Draw();
  EXPECT_EQ(Drawn().rows.size(), 5U) << Status().toStdString();
}

}  // namespace
}  // namespace quorvantis::test

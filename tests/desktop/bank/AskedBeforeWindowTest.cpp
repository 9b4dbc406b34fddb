// SPDX-License-Identifier: MIT
#include "bank/index/BankUpdate.h"
#include "desktop/WindowTest.h"
#include "desktop/bank/BankWindow.h"
#include "desktop/bank/asked/AskedBeforeWindow.h"
#include "desktop/bank/asked/BankElsewhereLine.h"
#include "examfile/ExamFileWriter.h"
#include "platform/digest/OpenSslDigest.h"

#include <QClipboard>
#include <QListView>
#include <QSignalSpy>

#include <random>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

constexpr const char16_t* kMetal = u"Which of these metals conducts electricity best, and why?";
constexpr const char16_t* kForce = u"Calculate the force on a body of 20 kilograms that falls freely.";
constexpr const char16_t* kForce30 = u"Calculate the force on a body of 30 kilograms that falls freely.";
constexpr const char16_t* kBlood = u"Which organ of the human body cleans the blood, and where is it?";

class AskedBeforeTest : public WindowTest {
 protected:
  AskedBeforeTest() {
    for (const char* variable : {"XDG_CACHE_HOME", "XDG_DATA_HOME"})
      qputenv(variable, (folder.Path() / variable).string().c_str());
    fs::create_directories(folder / "exams");
    BankProblem problem;
    auto index = BankIndex::Open(UsualBankPlace(), files, problem);
    if (!index || index->AddFolder(folder / "exams").IsAnything()) ADD_FAILURE() << "no bank";
  }

  fs::path Write(const char* name, const std::u16string& title, const std::vector<std::u16string>& texts) {
    FrameSetExam other(services);
    other.title = title;
    for (std::size_t i = 0; i < texts.size(); ++i) other.Question(static_cast<int>(i) + 1).text = texts[i];
    other.CountQuestions();
    EXPECT_FALSE(ExamFileWriter(other, services).Write(folder / "exams" / name));
    return folder / "exams" / name;
  }

  void UpdateBank() {
    BankProblem problem;
    auto index = BankIndex::Open(UsualBankPlace(), files, problem);
    BankUpdate(*index, services, digest_).Run();
  }

  void OpenAskedBefore() {
    Entry("examAskedBefore").trigger();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Control("askedBefore")));
  }

  QAbstractItemModel& Uses() { return *Control<QTreeView>("askedUses").model(); }
  QAbstractItemModel& Exams() { return *Control<QTreeView>("askedExams").model(); }
  bool WaitForUses(int questions) {
    return QTest::qWaitFor([this, questions] { return Uses().rowCount() == questions; }, 20'000);
  }

  OpenSslDigest digest_;
};

TEST_F(AskedBeforeTest, FollowsTheOpenExam) {
  Write("a.exm", u"Physics 1", {kMetal, kForce30});
  Write("b.exm", u"Biology 2", {kBlood, kMetal, u"Something else"});
  exam.Question(1).text = kForce;
  exam.Question(2).text = u"A new question that nobody has ever asked so far";
  exam.Question(3).text = kMetal;
  exam.CountQuestions();
  Open();
  OpenAskedBefore();
  ASSERT_TRUE(WaitForUses(2));
  EXPECT_EQ(Uses().rowCount(Uses().index(0, 0)), 1) << "a variant";
  EXPECT_EQ(Uses().rowCount(Uses().index(1, 0)), 2);
  ASSERT_EQ(Exams().rowCount(), 3);
  EXPECT_EQ(Exams().index(1, SharedExamsModel::kSame).data().toString(), "1");
  Control<QTreeView>("askedUses").setCurrentIndex(Uses().index(1, 0));
  EXPECT_EQ(window->findChild<MultiLineField*>("questionText")->toPlainText().toStdU16String(), kMetal);
  Click("askedCopy");
  EXPECT_EQ(QGuiApplication::clipboard()->text().count("Physics 1"), 3);
  // One older exam alone.
  const int physics = Exams().index(1, 0).data().toString() == "Physics 1" ? 1 : 2;
  Control<QTreeView>("askedExams").setCurrentIndex(Exams().index(physics, 0));
  EXPECT_EQ(Uses().rowCount(), 2);
  EXPECT_EQ(Uses().rowCount(Uses().index(1, 0)), 1);
  // What is typed counts before it is saved; the exam that was chosen stays so.
  Lines("questionText").setFocus();
  Lines("questionText").selectAll();
  QTest::keyClicks(&Lines("questionText"), "This is now quite another question");
  ASSERT_TRUE(WaitForUses(1));
  EXPECT_EQ(Control<QTreeView>("askedExams").currentIndex().data().toString(), "Physics 1");
}

TEST_F(AskedBeforeTest, LeadsToTheBankAndOnFromThere) {
  Write("a.exm", u"Physics 1", {kForce, kMetal});
  Write("b.exm", u"Biology 2", {kMetal});
  exam.Question(1).text = kMetal;
  exam.CountQuestions();
  Open();
  OpenAskedBefore();
  ASSERT_TRUE(WaitForUses(1));
  auto& tree = Control<QTreeView>("askedUses");
  emit tree.clicked(Uses().index(0, 0, Uses().index(0, 0)));
  auto& hits = Control<QListView>("bankHits");
  ASSERT_TRUE(QTest::qWaitFor([&] { return hits.model()->rowCount() == 3; }, 20'000));
  const auto chosen = [&hits] { return hits.currentIndex().data().toString(); };
  EXPECT_TRUE(chosen().contains("metals")) << chosen().toStdString();
  auto& line = Control<BankElsewhereLine>("bankElsewhere");
  ASSERT_TRUE(QTest::qWaitFor([&line] { return line.text().contains("href"); }, 20'000));
  const QString before = chosen();
  emit line.linkActivated("0");
  EXPECT_NE(chosen(), before) << "the same question in the other exam";
  EXPECT_TRUE(chosen().contains("metals"));
}

TEST_F(AskedBeforeTest, AnOutdatedHitIsNoticed) {
  const fs::path file = Write("a.exm", u"Physics 1", {kMetal});
  Write("b.exm", u"Biology 2", {kMetal});
  UpdateBank();
  BankDesk desk(UsualBankPlace(), services, digest_, nullptr);  // does not watch the folders yet
  QSignalSpy found(&desk, &BankDesk::Found);
  desk.Find({});
  ASSERT_TRUE(found.wait(20'000));
  ASSERT_EQ(desk.Hits().hits.size(), 2U);
  const auto of = [&](bool isFile) {
    const auto& hits = desk.Hits().hits;
    return &hits[(hits[0].question.exam.path == fs::canonical(file)) == isFile ? 0 : 1].question;
  };
  BankElsewhereLine line(desk, nullptr);
  QSignalSpy outdated(&line, &BankElsewhereLine::Outdated);
  line.Show(of(false));
  ASSERT_TRUE(QTest::qWaitFor([&line] { return line.text().contains("Physics 1"); }, 20'000));
  Write("a.exm", u"Physics 1", {kBlood});
  line.Show(of(true));
  EXPECT_TRUE(outdated.wait(20'000));
  EXPECT_TRUE(line.text().isEmpty());
  line.Show(of(false));
  ASSERT_TRUE(QTest::qWaitFor([&line] { return !line.text().isEmpty(); }, 20'000));
  EXPECT_FALSE(line.text().contains("Physics 1")) << "it no longer has the question";
}

TEST_F(AskedBeforeTest, IsClosedAndEditedAtAnyMoment) {
  std::minstd_rand random(5);
  for (int i = 0; i < 20; ++i)
    Write(("e" + std::to_string(i) + ".exm").c_str(), u"Exam", {kMetal, kForce, kBlood});
  exam.Question(1).text = kMetal;
  exam.CountQuestions();
  Open();
  for (int i = 0; i < 30; ++i) {
    OpenAskedBefore();
    QTest::qWait(static_cast<int>(random() % 60));
    if (i % 4 == 0) Click("askedAgain");
    if (i % 3 == 0) QTest::keyClicks(&Lines("questionText"), "a");
    QTest::qWait(static_cast<int>(random() % 60));
    if (i % 2 == 0) QTest::keyClick(&Control("askedBefore"), Qt::Key_Escape);
  }
  OpenAskedBefore();
  ASSERT_TRUE(WaitForUses(1));
  EXPECT_EQ(Exams().rowCount(), 21);
}

}  // namespace
}  // namespace quorvantis::test

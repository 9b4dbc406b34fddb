// SPDX-License-Identifier: MIT
#include "bank/BankTest.h"
#include "support/OrdinaryUser.h"

#include <chrono>
#include <csignal>
#include <fstream>
#include <random>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

class BankIndexTest : public BankTest {
 protected:
  const fs::path file = folder / "cache" / "bank.sqlite";

  /// Opens the index again as `found`; everything is found again after an update.
  void ExpectRebuilt(IndexFound found) {
    index.reset();
    index = Open();
    ASSERT_TRUE(index) << problem.detail;
    EXPECT_EQ(index->Found(), found);
    EXPECT_EQ(index->Folders(), std::vector<fs::path>{exams}) << "the list of folders is not lost";
    EXPECT_EQ(CountOf(u"mitosis"), 0U);
    EXPECT_EQ(Update().added, 1U);
    EXPECT_EQ(CountOf(u"mitosis"), 1U);
  }
};

TEST_F(BankIndexTest, IsMadeAnewWhenItDoesNotFit) {
  WriteExam(exams / "a.exm", u"", {QuestionWith(u"mitosis")});
  Update();
  index->Data().Execute("PRAGMA user_version=999; CREATE TABLE of_the_future(x)");
  ExpectRebuilt(IndexFound::Newer);
  index->Data().Execute("PRAGMA user_version=0");
  ExpectRebuilt(IndexFound::Older);
  index.reset();
  WriteBytes(file, "this is no database, but perhaps somebody's text");
  ExpectRebuilt(IndexFound::Damaged);
  EXPECT_EQ(ReadBytes(folder / "cache" / "bank.sqlite-damaged").substr(0, 7), "this is");
  index.reset();
  fs::resize_file(file, 5000);
  ExpectRebuilt(IndexFound::Damaged);
}

TEST_F(BankIndexTest, IsEmptiedWhenItTurnsOutToBeDamaged) {
  const std::vector<ExamQuestion> questions(300, QuestionWith(u"mitosis " + std::u16string(900, u'x')));
  WriteExam(exams / "a.exm", u"", questions);
  Update();
  index->Data().Execute("PRAGMA wal_checkpoint(TRUNCATE)");
  index.reset();
  {
    std::fstream damage(file, std::ios::binary | std::ios::in | std::ios::out);
    const std::string garbage(3000, '\xA5');
    for (std::uintmax_t at = 32'768; at < fs::file_size(file); at += 4096)
      damage.seekp(static_cast<std::streamoff>(at)).write(garbage.data(), 3000);
  }
  index = Open();
  ASSERT_TRUE(index);
  Find(u"mitosis");
  BankUpdateReport report = Update();
  if (report.problem.IsAnything()) report = Update();
  WriteExam(exams / "b.exm", u"", {QuestionWith(u"mitosis")});
  if (Update().problem.IsAnything()) Update();
  EXPECT_EQ(Find(u"mitosis", 1000).hits.size(), 301U);
  EXPECT_EQ(index->Data().Number("SELECT count(*) FROM pragma_integrity_check WHERE integrity_check <> 'ok'"),
            0);
}

TEST_F(BankIndexTest, LeavesAloneWhatIsNoIndex) {
  const fs::path other = folder / "other.sqlite";
  { Database(other, 100).Execute("CREATE TABLE precious(x); INSERT INTO precious VALUES(1)"); }
  const std::string before = ReadBytes(other);
  EXPECT_FALSE(BankIndex::Open(BankPlaceAt(other), files, problem));
  EXPECT_EQ(problem.trouble, BankTrouble::NotAnIndex);
  EXPECT_EQ(ReadBytes(other), before);
  EXPECT_FALSE(BankIndex::Open(BankPlaceAt(folder.Path()), files, problem)) << "a folder";
  const fs::path text = WriteBytes(folder / "exam.json", "a file that was named by mistake");
  EXPECT_FALSE(BankIndex::Open(BankPlaceAt(text), files, problem));
  EXPECT_EQ(problem.trouble, BankTrouble::NotAnIndex);
  EXPECT_EQ(ReadBytes(text), "a file that was named by mistake");
  EXPECT_EQ(index->AddFolder(folder / "none").trouble, BankTrouble::NoFolder);
}

TEST_F(BankIndexTest, FollowsTheFolders) {
  const std::vector<ExamQuestion> one{QuestionWith(u"question")};
  for (const char* name :
       {"a.exm", "\u7EC6\u80DE \u0623\u062D\u064A\u0627\u0621.EXM", "bad\xFF\xFEname.exm", "sub/deep/b.exm"})
    WriteExam(exams / name, u"", one);
  WriteBytes(exams / ".hidden" / "c.exm", "hidden");
  WriteBytes(exams / "a.exm~", "backup");
  fs::create_directory_symlink(exams, exams / "sub" / "circle");
  fs::create_symlink("loop.exm", exams / "loop.exm");
  const fs::path elsewhere = WriteExam(folder / "elsewhere" / "d.exm", u"", one).parent_path();
  fs::create_directory_symlink(elsewhere, exams / "link");
  WriteBytes(exams / "damaged.exm", ReadBytes(exams / "a.exm").substr(0, 20000));
  WriteBytes(exams / "none.exm", std::string(4000, 'x'));
  BankUpdateReport report = Update();
  EXPECT_EQ(report.added, 7U);
  EXPECT_EQ(CountOf(u"question"), 5U);
  const std::vector<BankExam> damaged = index->DamagedExams(problem);
  ASSERT_EQ(damaged.size(), 2U);
  EXPECT_EQ(damaged[0].state, ExamState::EndsEarly);
  EXPECT_EQ(damaged[1].state, ExamState::NoExam);
  EXPECT_EQ(damaged[1].Name(), u"none") << "not what stands where an exam has its title";
  report = Update();
  EXPECT_EQ(report.added + report.changed + report.removed, 0U);
  fs::remove(exams / "a.exm");
  fs::remove(exams / "link");
  report = Update();
  EXPECT_EQ(report.removed, 2U);
  bool wasThere = false;
  EXPECT_FALSE(index->RemoveFolder(exams / "", wasThere).IsAnything());
  EXPECT_TRUE(wasThere);
  EXPECT_EQ(CountOf(u"question"), 0U);
  Update();
  EXPECT_TRUE(index->Exams(problem).empty());
  for (const char* table : {"question", "content", "attached"})
    EXPECT_EQ(index->Data().Number(std::string("SELECT count(*) FROM ") + table), 0);
}

TEST_F(BankIndexTest, KeepsWhatItCannotLookInto) {
  WriteExam(exams / "secret" / "a.exm", u"", {QuestionWith(u"mitosis")});
  fs::permissions(folder.Path(), fs::perms::all);
  for (const auto& entry : fs::recursive_directory_iterator(folder.Path()))
    fs::permissions(entry, fs::perms::all);
  Update();
  fs::permissions(exams / "secret", fs::perms::none);
  {
    const OrdinaryUser user;
    index.reset();
    index = Open();
    ASSERT_TRUE(index);
    const BankUpdateReport report = Update();
    EXPECT_EQ(report.unreadableFolders, std::vector<fs::path>{exams / "secret"});
    EXPECT_EQ(report.removed, 0U);
    index.reset();
  }
  fs::permissions(exams / "secret", fs::perms::all);
  index = Open();
  EXPECT_EQ(CountOf(u"mitosis"), 1U);
}

TEST_F(BankIndexTest, NoticesAChangeWithoutANewTime) {
  const fs::path exam = WriteExam(exams / "a.exm", u"", {QuestionWith(u"mitosis")});
  MakeUnsettled(exam);
  const auto written = fs::last_write_time(exam);
  Update();
  WriteExam(exam, u"", {QuestionWith(u"meiosis")});
  fs::last_write_time(exam, written);
  EXPECT_EQ(Update().changed, 1U);
  EXPECT_EQ(CountOf(u"meiosis"), 1U);
}

TEST_F(BankIndexTest, IsWholeAfterTheProgramIsKilledAtAnyMoment) {
  std::vector<ExamQuestion> questions;
  questions.reserve(20);
  for (int i = 0; i < 20; ++i)
    questions.push_back(
        QuestionWith(u"mitosis number " + std::u16string(1, static_cast<char16_t>(u'a' + i))));
  for (int i = 0; i < 30; ++i) WriteExam(exams / (std::to_string(i) + ".exm"), u"", questions);
  std::mt19937 random(3);
  for (int round = 0; round < 15; ++round) {
    index.reset();
    const pid_t child = fork();
    if (child == 0) {
      index = Open();
      index->Data().Execute("PRAGMA wal_autocheckpoint=20");
      for (int i = 0; i < 30; ++i)
        fs::last_write_time(exams / (std::to_string(i) + ".exm"), fs::file_time_type::clock::now());
      Update();
      ::_exit(0);
    }
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 60000));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    index = Open();
    ASSERT_TRUE(index) << problem.detail;
    ASSERT_NE(index->Found(), IndexFound::Damaged);
    ASSERT_EQ(
        index->Data().Number("SELECT count(*) FROM pragma_integrity_check WHERE integrity_check <> 'ok'"), 0);
    const auto exams20 = index->Data().Number("SELECT count(*) FROM exam") * 20;
    ASSERT_EQ(index->Data().Number("SELECT count(*) FROM question"), exams20) << "whole exams only";
    ASSERT_EQ(index->Data().Number("SELECT count(*) FROM gram WHERE gram MATCH '\"mitosis\"'"), exams20);
    index->Data().Execute("INSERT INTO gram(gram) VALUES('integrity-check')");
    if (round % 5 == 4)
      fs::remove_all(folder / "cache"), index.reset(), index = Open(), index->AddFolder(exams);
  }
  Update();
  EXPECT_EQ(Find(u"mitosis", 1000).hits.size(), 600U);
}

TEST_F(BankIndexTest, TwoProgramsMayUseItAtOnce) {
  for (int i = 0; i < 20; ++i)
    WriteExam(exams / (std::to_string(i) + ".exm"), u"", {QuestionWith(u"mitosis")});
  index.reset();
  std::vector<pid_t> children;
  for (int program = 0; program < 3; ++program) {
    children.push_back(fork());
    if (children.back() != 0) continue;
    index = Open();
    bool isGood = index.has_value() && !Update().problem.IsAnything();
    for (int i = 0; i < 10 && isGood; ++i) isGood = !Find(u"mitosis").problem.IsAnything();
    ::_exit(isGood ? 0 : 1);
  }
  for (const pid_t child : children) {
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
  }
  index = Open();
  EXPECT_EQ(index->Exams(problem).size(), 20U);
  EXPECT_EQ(CountOf(u"mitosis"), 20U);
  // A writer that keeps the index delays an update, and searches go on.
  const auto other = Open();
  WriteExam(exams / "new.exm", u"", {QuestionWith(u"mitosis")});
  BankUpdate update(*index, world.services, digest);
  {
    const Transaction writing(other->Data());
    for (int i = 0; i < 5; ++i) EXPECT_TRUE(update.Step(std::chrono::milliseconds(1000)));
    EXPECT_EQ(Find(u"mitosis").total, 20U);
  }
  update.Run();
  EXPECT_EQ(update.Report().added, 1U);
}

TEST_F(BankIndexTest, AFullDiskLeavesWhatWasThere) {
  WriteExam(exams / "a.exm", u"", {QuestionWith(u"mitosis")});
  Update();
  std::vector<ExamQuestion> questions;
  questions.reserve(100);
  for (int i = 0; i < 100; ++i)
    questions.push_back(QuestionWith(std::u16string(3000, static_cast<char16_t>(0x4E00 + i))));
  WriteExam(exams / "big.exm", u"", questions);
  index.reset();
  const pid_t child = fork();
  if (child == 0) {
    index = Open();
    ::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{200000, 200000};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    const bool isTold = Update().problem.trouble == BankTrouble::NoSpace;
    const bool isThere = CountOf(u"mitosis") == 1;
    ::_exit((isTold ? 0 : 1) + (isThere ? 0 : 2));
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  EXPECT_EQ(WEXITSTATUS(status), 0);
  index = Open();
  ASSERT_TRUE(index);
  EXPECT_EQ(CountOf(u"mitosis"), 1U);
  EXPECT_EQ(Update().added, 1U);
}

TEST_F(BankIndexTest, TellsThatItCannotBeWritten) {
  MakeUnsettled(WriteExam(exams / "a.exm", u"", {QuestionWith(u"mitosis")}));
  Update();
  WriteExam(exams / "b.exm", u"", {QuestionWith(u"mitosis")});
  index.reset();
  fs::permissions(folder.Path(), fs::perms::all);
  for (const auto& entry : fs::recursive_directory_iterator(folder.Path()))
    fs::permissions(entry, fs::perms::all);
  fs::permissions(file, fs::perms::owner_read | fs::perms::others_read);
  {
    const OrdinaryUser user;
    index = Open();
    ASSERT_TRUE(index) << problem.detail;
    EXPECT_EQ(CountOf(u"mitosis"), 1U) << "it can be read";
    EXPECT_EQ(Update().problem.trouble, BankTrouble::NotWritable);
    index.reset();
  }
  Open();  // and closes it, so that nothing lies beside it
  fs::permissions(folder / "cache", fs::perms::others_read | fs::perms::others_exec);
  {
    const OrdinaryUser user;
    EXPECT_FALSE(Open());
    EXPECT_EQ(problem.trouble, BankTrouble::NotWritable);
  }
  fs::permissions(folder / "cache", fs::perms::all);
  index = Open();
  ASSERT_TRUE(index);
  EXPECT_EQ(Update().added, 1U);
}

TEST_F(BankIndexTest, ACancelledUpdateGoesOnLater) {
  struct CancelAfter : Progress {
    int left = 0;
    void Report(std::uint64_t, std::uint64_t) override {}
    bool IsCancelled() override { return left-- <= 0; }
  } progress;
  for (int i = 0; i < 30; ++i)
    WriteExam(exams / (std::to_string(i) + ".exm"), u"", {QuestionWith(u"mitosis")});
  RecordingWorld cancelling(folder / "app", files, world.pages, progress);
  progress.left = 10;
  BankUpdate update(*index, cancelling.services, digest);
  update.Run();
  EXPECT_TRUE(update.Report().isCancelled);
  EXPECT_LT(update.Report().added, 10U);
  EXPECT_EQ(Update().added + update.Report().added, 30U);
}

}  // namespace
}  // namespace quorvantis::test

// SPDX-License-Identifier: MIT
#include "bank/BankTest.h"
#include "bank/search/KeptBankMemory.h"
#include "platform/QuietProgress.h"

#include <map>
#include <random>
#include <set>
#include <tuple>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

using Uses = std::set<std::tuple<int, std::string, int, QuestionRelation>>;  // question, exam, number

class BankMemoryTest : public BankTest {
 protected:
  /// Out of few sentences, with another number, end or order of the options.
  ExamQuestion RandomQuestion() {
    const std::u16string_view sentences[] = {
        u"Calculate the force on a body of 20 kilograms that falls freely near the ground.",
        u"Which organ of the human body cleans the blood, and where does it lie?",
        u"\u54EA\u4E00\u79CD\u91D1\u5C5E\u7684\u5BFC\u7535\u6027\u6700\u597D\uFF0C\u4E3A\u4EC0\u4E48\uFF1F"};
    ExamQuestion question = QuestionWith(std::u16string(sentences[random_() % 3]));
    if (const auto place = question.text.find(u"20"); place != question.text.npos && random_() % 2 == 0)
      question.text[place] = u'5';
    if (random_() % 4 == 0) question.text += u" Explain!";
    question.options = {u"the first of them", u"the second one", u"none at all", u"all of these"};
    std::shuffle(question.options.begin(), question.options.begin() + 4, random_);
    if (random_() % 4 == 0) question.options[random_() % 4] = u"something quite different";
    return question;
  }

  void WriteAll() {
    for (int i = 0; i < 8; ++i) {
      std::vector<ExamQuestion> questions;
      for (int n = 0; n < 10; ++n) questions.push_back(RandomQuestion());
      const fs::path file = WriteExam(exams / (std::to_string(i) + ".exm"), u"", questions);
      MakeUnsettled(file);
      all_[file] = std::move(questions);
    }
    Update();
  }

  static std::vector<QuestionContent> ContentsOf(const std::vector<ExamQuestion>& questions) {
    std::vector<QuestionContent> contents;
    for (const ExamQuestion& question : questions) contents.push_back(ContentOf(question, {}));
    return contents;
  }

  /// By comparing all with all.
  Uses Expected(const fs::path& self, const std::set<fs::path>& without) {
    Uses uses;
    const std::vector<QuestionContent> open = ContentsOf(all_[self]);
    for (const auto& [file, questions] : all_) {
      if (file == self || without.contains(file)) continue;
      const std::vector<QuestionContent> older = ContentsOf(questions);
      for (std::size_t i = 0; i < open.size(); ++i) {
        for (std::size_t n = 0; n < older.size(); ++n) {
          const auto relation = RelationOf(ComparedQuestion(open[i]), ComparedQuestion(older[n]));
          if (IsSameQuestion(relation) || IsVariant(relation))
            uses.emplace(static_cast<int>(i), file.filename(), static_cast<int>(n) + 1, relation);
        }
      }
    }
    return uses;
  }

  Uses Told(const BankMemory& memory, const fs::path& self) {
    QuietProgress progress;
    const BankLikeness likeness = memory.Like(*index, digest, ContentsOf(all_[self]), self, progress);
    EXPECT_FALSE(likeness.problem.IsAnything()) << likeness.problem.detail;
    Uses uses;
    std::map<fs::path, std::set<std::size_t>> same;
    for (std::size_t i = 0; i < likeness.uses.size(); ++i) {
      for (const BankUse& use : likeness.uses[i]) {
        uses.emplace(static_cast<int>(i), use.exam.path.filename(), use.number, use.relation);
        if (IsSameQuestion(use.relation)) same[use.exam.path].insert(i);
      }
    }
    for (const BankShare& share : likeness.exams) EXPECT_EQ(share.same, same[share.exam.path].size());
    return uses;
  }

  std::mt19937 random_{11};
  std::map<fs::path, std::vector<ExamQuestion>> all_;
};

TEST_F(BankMemoryTest, TellsWhatAComparisonOfAllWithAllTells) {
  WriteAll();
  const BankMemory memory(*index);
  std::size_t told = 0;
  for (const auto& [self, questions] : all_) {
    const Uses uses = Told(memory, self);
    EXPECT_EQ(uses, Expected(self, {}));
    told += uses.size();
  }
  EXPECT_GT(told, 500U);
  EXPECT_TRUE(memory.IsUpToDate(*index));
}

TEST_F(BankMemoryTest, TellsNothingThatAFileNoLongerHolds) {
  WriteAll();
  const BankMemory memory(*index);
  const std::set<fs::path> lost{exams / "1.exm", exams / "2.exm", exams / "3.exm"};
  fs::remove(exams / "1.exm");
  WriteExam(exams / "2.exm", u"", {QuestionWith(u"Another question")});
  const auto written = fs::last_write_time(exams / "3.exm");
  const std::string before = ReadBytes(exams / "3.exm");
  WriteExam(exams / "3.exm", u"", std::vector<ExamQuestion>(10, QuestionWith(u"Another question")));
  fs::resize_file(exams / "3.exm", before.size());
  fs::last_write_time(exams / "3.exm", written);  // only its content tells
  EXPECT_EQ(Told(memory, exams / "0.exm"), Expected(exams / "0.exm", lost));
  Update();
  EXPECT_FALSE(memory.IsUpToDate(*index));
  EXPECT_EQ(Told(memory, exams / "0.exm"), Expected(exams / "0.exm", lost)) << "an old memory";
  fs::rename(exams, folder / "unplugged");
  EXPECT_TRUE(Told(BankMemory(*index), exams / "0.exm").empty());
}

TEST_F(BankMemoryTest, IsKeptUntilTheIndexChanges) {
  WriteAll();
  KeptBankMemory kept;
  const auto goesOn = [] { return false; };
  const auto first = kept.For(*index, goesOn);
  EXPECT_EQ(kept.For(*index, goesOn), first);
  const std::vector<ExamQuestion> reversed(all_[exams / "7.exm"].rbegin(), all_[exams / "7.exm"].rend());
  WriteExam(exams / "7.exm", u"", reversed);  // the last one, so that identifiers are used again
  Update();
  EXPECT_NE(kept.For(*index, goesOn), first);
  kept.Forget();
  EXPECT_EQ(kept.For(*index, [] { return true; }), nullptr);
  ASSERT_NE(kept.For(*index, goesOn), nullptr);
}

}  // namespace
}  // namespace quorvantis::test

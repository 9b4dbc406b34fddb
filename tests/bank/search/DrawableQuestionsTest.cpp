// SPDX-License-Identifier: MIT
#include "bank/BankTest.h"
#include "bank/draw/DrawQuestions.h"
#include "bank/search/DrawableQuestions.h"
#include "bank/search/DrawnList.h"
#include "bank/search/QuerySql.h"

#include <chrono>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;
using std::chrono_literals::operator""h;

class Drawable : public BankTest {
 protected:
  /// The texts of all candidates, each with its tags.
  std::vector<std::u16string> Texts() {
    const DrawableQuestions drawable(*index, files);
    std::vector<std::u16string> texts;
    for (std::size_t i = 0; i < drawable.Candidates().size(); ++i) {
      texts.push_back(drawable.Question(i)->text);
      for (const std::u16string& tag : drawable.Candidates()[i].tags) texts.back() += u" #" + tag;
    }
    return texts;
  }
};

using TextsOfQuestions = std::vector<std::u16string>;

TEST_F(Drawable, HaveContentAndTagsOfTheirFolder) {
  WriteExam(exams / "b" / "b.exm", u"B", {QuestionWith(u"Why?"), QuestionWith(u""), QuestionWith(u"When?")});
  WriteExam(exams / "a.exm", u"A", {QuestionWith(u"Why?")});
  Update();
  EXPECT_EQ(Texts(), (TextsOfQuestions{u"Why?", u"Why?", u"When?"}));

  const std::string key = DrawableQuestions(*index, files).Candidates().front().key;
  TagFile tags(exams / "b", files);
  ASSERT_TRUE(tags.Change({{key, u"Why?", {}, {u"causes"}, {}}}).IsDone());
  EXPECT_EQ(Texts(), (TextsOfQuestions{u"Why?", u"Why? #causes", u"When?"}));

  WriteBytes(exams / "b" / kTagFileName, "{");
  EXPECT_EQ(DrawableQuestions(*index, files).Unread().size(), 1U);
  fs::remove(exams / "b" / "b.exm");
  EXPECT_EQ(Texts(), (TextsOfQuestions{u"Why?"}));
}

TEST_F(Drawable, AreUsedWhenTheirExamWasChanged) {
  const fs::path old = WriteExam(exams / "old.exm", u"Old", {QuestionWith(u"Why?"), QuestionWith(u"Who?")});
  fs::last_write_time(old, fs::last_write_time(old) - 240h);
  WriteExam(exams / "new.exm", u"New", {QuestionWith(u"Why?")});
  Update();
  const DrawableQuestions drawable(*index, files);
  ASSERT_EQ(drawable.Candidates().size(), 3U);
  DrawRequest request;
  request.wishes.resize(1);
  request.wishes.front().count = 9;
  request.notUsedSince = *drawable.Candidates().front().used - std::chrono::days(5);
  const DrawOutcome drawn =
      DrawQuestions(drawable.Candidates(), request, [&](std::size_t at) { return drawable.ComparedAt(at); });
  ASSERT_EQ(drawn.questions.size(), 1U);
  EXPECT_EQ(drawable.Question(drawn.questions.front().candidate)->text, u"Who?");
}

TEST_F(Drawable, ComeFromTheChosenFolderButWereUsedAnywhere) {
  const fs::path old = WriteExam(exams / "a" / "old.exm", u"Old", {QuestionWith(u"Why?")});
  fs::last_write_time(old, fs::last_write_time(old) - 240h);
  WriteExam(exams / "ab" / "new.exm", u"New", {QuestionWith(u"Why?"), QuestionWith(u"Who?")});
  Update();
  DrawOrder order;
  order.request.wishes.resize(1);
  order.request.wishes.front().count = 9;
  order.folder = exams / "a";
  const DrawnList list = DrawFromBank(*index, files, order);
  ASSERT_EQ(list.rows.size(), 1U);
  EXPECT_EQ(list.rows.front().question.exam.path, old);
  EXPECT_EQ(list.rows.front().lastExam, u"New");
  EXPECT_EQ(list.wishes.front().excluded.at(DrawObstacle::NotOffered), 1U);
  const AnotherDrawn other = DrawAnother(*index, files, list, 0);
  EXPECT_FALSE(other.row);
  EXPECT_EQ(other.outcome.excluded.at(DrawObstacle::Rejected), 1U);
}

TEST_F(Drawable, RanksTheQuestionsReadLast) {
  WriteExam(exams / "a.exm", u"A",
            {QuestionWith(u"cells"), QuestionWith(u"cells too"), QuestionWith(u"dog")});
  Update();
  for (const auto& [query, rows, count] : {std::tuple(u"cell", 1, 2), std::tuple(u"kind:choice", 3, 3)}) {
    const QuerySql sql(ParseBankQuery(query), nullptr);
    Statement counted = index->Data().Prepare(sql.Count());
    sql.Bind(counted);
    ASSERT_TRUE(counted.Step());
    EXPECT_EQ(counted.Integer(0), count);
    Statement ranked = index->Data().Prepare(sql.Ranked(1));
    sql.Bind(ranked);
    int found = 0;
    for (; ranked.Step(); ++found) EXPECT_TRUE(count == 3 || ranked.Integer(0) == 2);
    EXPECT_EQ(found, rows);
  }
}

}  // namespace
}  // namespace quorvantis::test

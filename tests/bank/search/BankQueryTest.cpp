// SPDX-License-Identifier: MIT
#include "bank/BankTest.h"

namespace quorvantis::test {
namespace {

TEST(BankQuery, ReadsWordsPhrasesAndFilters) {
  struct Row {
    std::u16string_view text;
    std::vector<BankTerm> terms;
    std::vector<QuestionKind> kinds = {};
  };
  const Row rows[] = {
      {u"", {}},
      {u"  Cell  WALL ", {{u"cell"}, {u"wall"}}},
      {u"\"cell wall\"", {{u"cell wall"}}},
      {u"\u201Ccell wall", {{u"cell wall"}}},
      {u"-cell - -\"a b\"", {{u"cell", true}, {u"-"}, {u"a b", true}}},
      {u"kind:oral kind:\u00CBssay kind:Choice",
       {},
       {QuestionKind::Oral, QuestionKind::Essay, QuestionKind::Choice}},
      {u"kind:exam http://x score:x before:soon :a a:",
       {{u"kind:exam"}, {u"http://x"}, {u"score:x"}, {u"before:soon"}, {u":a"}, {u"a:"}}},
      {u"cell cell", {{u"cell"}}},
  };
  for (const Row& row : rows) {
    const BankQuery query = ParseBankQuery(row.text);
    EXPECT_EQ(query.terms, row.terms) << std::string(row.text.begin(), row.text.end());
    EXPECT_EQ(query.kinds, row.kinds);
  }
  EXPECT_TRUE(ParseBankQuery(u"cell p", true).terms[1].isBegun);
  EXPECT_FALSE(ParseBankQuery(u"cell p", true).terms[0].isBegun);
  EXPECT_FALSE(ParseBankQuery(u"cell p ", true).terms[1].isBegun);
  const BankQuery query = ParseBankQuery(u"has:key -has:files exam:\"Term 2\" folder:2024 score:1-2,5");
  EXPECT_TRUE(query.hasKey == true && query.hasFiles == false);
  EXPECT_EQ(query.exams, std::vector<std::u16string>{u"term 2"});
  EXPECT_EQ(query.folders, std::vector<std::u16string>{u"2024"});
  EXPECT_EQ(query.score, (ScoreBounds{1, 2.5, true, true}));
  EXPECT_TRUE(ParseBankQuery(u"after:2028-02-29").writtenFrom);
  EXPECT_EQ(ParseBankQuery(u"after:2026-02-29").terms.size(), 1U) << "no day, so it is text";
}

using BankSearchTest = BankTest;

TEST_F(BankSearchTest, FindsShortWordsAsUsersMeanThem) {
  WriteExam(exams / "a.exm", u"",
            {QuestionWith(u"The pH of water is 7."), QuestionWith(u"the alphabet"),
             QuestionWith(u"\u7EC6\u80DE\u819C"), QuestionWith(u"vitamin C and C#")});
  Update();
  EXPECT_EQ(CountOf(u"ph"), 1U);
  EXPECT_EQ(CountOf(u"pha"), 1U) << "part of a word";
  EXPECT_EQ(CountOf(u"\u80DE"), 1U);
  EXPECT_EQ(CountOf(u"\u80DE\u819C"), 1U);
  EXPECT_EQ(CountOf(u"\u819C\u80DE"), 0U);
  EXPECT_EQ(CountOf(u"c#"), 1U);
  EXPECT_EQ(CountOf(u"a -c"), 0U);
  EXPECT_EQ(BankSearch(*index, world.services, digest).Find(ParseBankQuery(u"wa", true), 9).hits.size(), 1U);
}

TEST_F(BankSearchTest, FiltersAndHighlights) {
  ExamQuestion withKey = QuestionWith(u"Caf\u00E9 H<sub>2</sub>O", {u"tea", u"caf\u00E9 cafe"});
  withKey.answerLetters = u"b";
  ExamQuestion essay = QuestionWith(u"Essay on cafes");
  essay.kind = QuestionKind::Essay;
  WriteExam(exams / "term 2" / "biology.exm", u"Zoology", {withKey, essay});
  Update();
  const BankHits hits = Find(u"cafe");
  ASSERT_EQ(hits.hits.size(), 2U);
  const std::pair<std::u16string_view, std::size_t> rows[] = {
      {u"cafe kind:essay", 1},
      {u"cafe has:key", 1},
      {u"-has:key", 1},
      {u"exam:zoo", 2},
      {u"exam:biology.exm", 2},
      {u"exam:chem", 0},
      {u"folder:\"term 2\"", 2},
      {u"folder:\"term 3\"", 0},  // a digit alone may be in the random name of the folder above
      {u"after:2001 cafe", 2},
      {u"before:2001", 0},
      {u"has:files", 0},
      {u"score:>0", 0},
      {u"h2o", 1},
      {u"\"cafe h\"", 1},
      {u"\"tea cafe\"", 0}};
  for (const auto& [query, count] : rows)
    EXPECT_EQ(CountOf(query), count) << std::string(query.begin(), query.end());
  const BankHit& hit = hits.hits[0].question.number == 1 ? hits.hits[0] : hits.hits[1];
  EXPECT_EQ(hit.question.answerMask, 8);
  EXPECT_EQ(hit.highlights, (std::vector<BankHighlight>{{ExamFieldName::QuestionText, 0, {0, 4}},
                                                        {ExamFieldName::Options, 1, {0, 4}},
                                                        {ExamFieldName::Options, 1, {5, 9}}}));
}

TEST_F(BankSearchTest, ShowsNothingThatTheFileNoLongerHolds) {
  WriteExam(exams / "a.exm", u"", {QuestionWith(u"mitosis")});
  WriteExam(exams / "b.exm", u"", {QuestionWith(u"mitosis, too")});
  Update();
  EXPECT_EQ(CountOf(u"mitosis"), 2U);
  WriteExam(exams / "a.exm", u"", {QuestionWith(u"meiosis"), QuestionWith(u"new mitosis")});
  std::filesystem::remove(exams / "b.exm");
  const BankHits hits = Find(u"mitosis");
  ASSERT_EQ(hits.hits.size(), 1U);
  EXPECT_EQ(hits.hits[0].question.text, u"new mitosis");
  std::filesystem::rename(exams, folder / "unplugged");
  EXPECT_EQ(CountOf(u"mitosis"), 0U);
  std::filesystem::rename(folder / "unplugged", exams);
  EXPECT_EQ(CountOf(u"mitosis"), 1U) << "nothing was forgotten";
}

}  // namespace
}  // namespace quorvantis::test

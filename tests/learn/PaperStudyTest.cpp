// SPDX-License-Identifier: MIT
#include "learn/ForeseenImport.h"
#include "learn/PaperStudy.h"
#include "learn/RoleLookup.h"

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

constexpr std::u16string_view kPaper =
    u"Test\n1. Why?\nA. x\nB. y\nAnswer: B\n2. How so?\nA. u\nB. v\nAnswer: A\n";

ImportSettings StudyRules(std::u16string_view number) {
  ImportSettings rules;
  rules.m_strPreQuestion = number;
  rules.m_strPreAnswer = u"\\s*^Answer:[ ]*";
  rules.m_strPattern = u"(?<Q1>.+?)\\s*^A[.]\\s*(?<A>.+?)\\s*^B[.]\\s*(?<B>.+?)\\s*\\z|(?<Q2>.*\\S)";
  return rules;
}

TEST(PaperStudy, UndoLeadsBackToRulesWrittenByHand) {
  PaperStudy study(PaperOf(kPaper));
  study.SetRules(StudyRules(u"^[0-9]+[.]"));
  ASSERT_EQ(study.Reading().paper.questions.size(), 2U);
  study.AddMark({{5, 7}, PaperRole::QuestionNumber});
  EXPECT_FALSE(study.HasOwnRules());
  study.AddMark({{6, 12}, PaperRole::Question});  // overlaps the one before
  EXPECT_EQ(study.Marks().size(), 1U);
  study.Undo();
  study.Undo();
  EXPECT_TRUE(study.HasOwnRules());
  EXPECT_TRUE(study.Marks().empty());
  study.Redo();
  EXPECT_EQ(study.Marks().front().role, PaperRole::QuestionNumber);
}

TEST(PaperStudy, RulesWrittenByHandAreStepsOfTheirOwn) {
  PaperStudy study(PaperOf(kPaper));
  study.AddMark({{5, 7}, PaperRole::QuestionNumber});
  study.NoteRules(StudyRules(u"a"));
  study.NoteRules(StudyRules(u"ab"), true);
  study.NoteRules(StudyRules(u"c"));
  study.Undo();
  EXPECT_EQ(study.State().ownRules->m_strPreQuestion, u"ab");
  study.Undo();
  EXPECT_FALSE(study.HasOwnRules());
  EXPECT_EQ(study.Marks().size(), 1U);
  study.Undo();
  EXPECT_TRUE(study.Marks().empty());
}

TEST(PaperStudy, ReturnsToTheStateThatIsShown) {
  PaperStudy study(PaperOf(kPaper));
  study.Take({});
  study.AddMark({{5, 7}, PaperRole::QuestionNumber});
  study.Take({});
  study.AddMark({{13, 15}, PaperRole::OptionLabel});
  study.AddMark({{18, 20}, PaperRole::OptionLabel});
  study.ReturnToTaken();
  EXPECT_EQ(study.Marks().size(), 1U);
  study.NoteRules(StudyRules(u"x"));
  study.ReturnToTaken();
  EXPECT_FALSE(study.HasOwnRules());
}

TEST(RoleLookup, FindsQuestionsAndWhatIsUnderstoodAlready) {
  PaperStudy study(PaperOf(kPaper));
  study.SetRules(StudyRules(u"\\s*^[0-9]+[.]\\s*"));
  const RoleLookup lookup(study.Roles());
  const auto find = [](std::u16string_view text) {
    const std::size_t place = kPaper.find(text);
    return TextSpan{place, place + text.size()};
  };
  EXPECT_EQ(lookup.QuestionAt(0), -1);
  EXPECT_EQ(lookup.QuestionAt(find(u"y").begin), 0);
  EXPECT_EQ(lookup.QuestionAt(find(u"u\nB").begin), 1);
  EXPECT_EQ(lookup.QuestionAt(kPaper.size()), 1);
  EXPECT_EQ(lookup.PlaceOf(1)->begin, find(u"2. How").begin);
  EXPECT_EQ(lookup.PlaceOf(2), std::nullopt);
  EXPECT_TRUE(IsUnderstoodAs(kPaper, lookup, find(u"2."), PaperRole::QuestionNumber));
  EXPECT_TRUE(IsUnderstoodAs(kPaper, lookup, find(u"How so?"), PaperRole::Question));
  EXPECT_FALSE(
      IsUnderstoodAs(kPaper, lookup, find(u"so?"), PaperRole::Question));  // another one begins there
  EXPECT_FALSE(IsUnderstoodAs(kPaper, lookup, find(u"Why?\nA"), PaperRole::Question));
  EXPECT_FALSE(IsUnderstoodAs(kPaper, lookup, find(u"Test"), PaperRole::Heading));
}

struct PlaceRow {
  const char* what;
  std::vector<int> taken;  ///< questions with a text
  int questions;
  ImportWish wish;
  int first;
  int written;
  int lastMoved;
};

TEST(ForeseenImport, ForeseesWhereQuestionsGoAndWhichMove) {
  using Where = ImportWish::Where;
  const PlaceRow rows[] = {
      {"empty exam", {}, 3, {Where::BehindLast}, 1, 3, 0},
      {"behind", {1, 2, 7}, 3, {Where::BehindLast}, 8, 3, 0},
      {"before others", {1, 2, 3, 4}, 2, {Where::From, 2}, 2, 2, 4},
      {"before the first", {1}, 2, {Where::From, 1}, 1, 2, 1},
      {"beyond the end", {1}, 2, {Where::From, 300}, 2, 2, 0},
      {"little room", {1, 498}, 5, {Where::From, 1}, 1, 2, 498},
      {"full", {500}, 5, {Where::BehindLast}, 501, 0, 0},
      {"full, from", {500}, 5, {Where::From, 3}, 3, 0, 0},
      {"new", {1, 2}, 600, {Where::NewExam}, 1, 500, 0},
      {"nothing", {1, 2}, 0, {Where::From, 1}, 1, 0, 0},
  };
  for (const PlaceRow& row : rows) {
    ExamPaper exam;
    for (const int n : row.taken) exam.Question(n).essayAnswer = u"so";
    const ForeseenImport place = ForeseeImport(exam, row.questions, row.wish);
    EXPECT_EQ(place.first, row.first) << row.what;
    EXPECT_EQ(place.written, row.written) << row.what;
    EXPECT_EQ(place.leftOut, row.questions - row.written) << row.what;
    EXPECT_EQ(place.lastMoved, row.lastMoved) << row.what;
  }
}

}  // namespace
}  // namespace quorvantis::test

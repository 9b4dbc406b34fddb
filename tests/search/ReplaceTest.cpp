// SPDX-License-Identifier: MIT
#include "search/SearchTest.h"

#include <algorithm>
#include <random>

namespace quorvantis::test {
namespace {

struct ReplaceRow {
  const char* what;
  SearchQuery query;
  std::u16string replacement;
  std::u16string before;
  std::u16string after;
};

const ReplaceRow kReplaceRows[] = {
    {"text", {u"colour"}, u"color", u"Colour and colour", u"color and color"},
    {"backslashes are text", {u"a"}, u"\\1\\\\", u"a", u"\\1\\\\"},
    {"groups", {u"(\\w+) (\\w+)", kPattern}, u"\\2 \\1=\\0", u"one two", u"two one=one two"},
    {"a group without a part", {u"(a)|(b)", kPattern}, u"<\\2>", u"ab", u"<><b>"},
    {"backslash, break, other", {u"a", kPattern}, u"\\\\1\\n\\x\\", u"a", u"\\1\r\n\\x\\"},
    {"line ends stay outside", {u"b.*", kPattern}, u"c", u"a\rb1\r\nb2\nb3", u"a\rc\r\nc\nc"},
    {"a line end goes as a whole", {u"\\n", kPattern}, u" ", u"a\r\nb\rc\nd", u"a b c d"},
    {"a line end in a group", {u"(a\\n)b", kPattern}, u"\\1c", u"a\nb", u"a\r\nc"},
    {"to nothing", {u"x"}, u"", u"axbx", u"ab"},
};

TEST_F(SearchTest, ReplacesInAText) {
  for (const ReplaceRow& row : kReplaceRows) {
    SCOPED_TRACE(row.what);
    exam.Question(1).text = row.before;
    const ReplacementText replacement(row.replacement, row.query.isPattern);
    const ReplacementPlan plan = PlanReplacements(exam, TextSearch(row.query), replacement);
    const std::vector<FieldRewrite> rewrites = RewriteFields(exam, plan.replacements);
    ASSERT_EQ(rewrites.size(), 1U);
    EXPECT_EQ(rewrites[0].after, row.after);
    EXPECT_FALSE(plan.replacements[0].obstacle);
  }
}

TEST_F(SearchTest, KnowsWhichGroupsThereAre) {
  const TextSearch search({u"(a)(b)", kPattern});
  EXPECT_EQ(ReplacementText(u"\\0\\2\\1", true).UnknownGroup(search), std::nullopt);
  EXPECT_EQ(ReplacementText(u"\\1\\3", true).UnknownGroup(search), 3);
}

struct ObstacleRow {
  ExamFieldName field;
  std::u16string before;
  std::u16string wanted;
  std::u16string replacement;
  std::optional<ReplacementObstacle> obstacle;
};

TEST_F(SearchTest, LeavesAloneWhatAFieldCannotHold) {
  using enum ExamFieldName;
  using enum ReplacementObstacle;
  const std::u16string full(255, u'x');
  const ObstacleRow rows[] = {
      {AttachmentName, u"map.jpg", u"map", u"plan", FileName},
      {Options, full + u"a", u"a", u"ab", TooLong},
      {Options, full + u"aa", u"aa", u"ab", TooLong},
      {Options, full + u"aaa", u"aaa", u"ab", std::nullopt},  // was too long before, and is less so now
      {QuestionText, std::u16string(4095, u'x') + u"a", u"a", u"\n", TooLong},
      {FillInAnswer, u"cat<@>dog", u"dog", u"", EmptyAnswer},
      {FillInAnswer, u"cat<@>dog", u"cat", u" ", EmptyAnswer},
      {FillInAnswer, u"cat<@> ", u"cat", u"dog", std::nullopt},
      {FillInAnswer, u"dog", u"dog", u"", std::nullopt},
      {FillInAnswer, u"cat; dog", u"; ", u"<@>", OtherAnswers},
      {FillInAnswer, u"<x@>", u"x", u"", OtherAnswers},
  };
  for (const ObstacleRow& row : rows) {
    SCOPED_TRACE(Utf16ToUtf8(row.before + u" " + row.replacement));
    const TextPlace place{2, row.field};
    exam.Question(2) = {};
    exam.Question(2).kind = row.field == FillInAnswer ? QuestionKind::FillIn : QuestionKind::Choice;
    *TextAt(exam, place) = row.before;
    const TextSearch search({row.wanted});
    const ReplacementText replacement(row.replacement, false);
    const ReplacementPlan plan = PlanReplacements(exam, search, replacement);
    ASSERT_EQ(plan.replacements.size(), 1U);
    EXPECT_EQ(plan.replacements[0].obstacle, row.obstacle);
    EXPECT_EQ(PlanReplacement(exam, plan.replacements[0].hit, search, replacement)->obstacle, row.obstacle);
  }
}

TEST_F(SearchTest, OneReplacementCanFitWhereAllDoNot) {
  exam.Question(1).options[2] = std::u16string(253, u'x') + u"aa";
  const TextSearch search({u"a"});
  const ReplacementText replacement(u"ab", false);
  const ReplacementPlan plan = PlanReplacements(exam, search, replacement);
  ASSERT_EQ(plan.replacements.size(), 2U);
  EXPECT_EQ(plan.replacements[1].obstacle, ReplacementObstacle::TooLong);
  EXPECT_EQ(PlanReplacement(exam, plan.replacements[1].hit, search, replacement)->obstacle, std::nullopt);
  SearchHit gone = plan.replacements[1].hit;
  ++gone.start;
  EXPECT_FALSE(PlanReplacement(exam, gone, search, replacement));
}

/// Whatever is chosen, only that changes, and what was not chosen is what is found afterwards.
TEST_F(SearchTest, ReplacesExactlyWhatWasChosen) {
  std::mt19937 random(7);
  const auto draw = [&] {
    std::u16string text;
    for (std::size_t size = random() % 60; size > 0; --size)
      text += std::u16string(1, u"abA \r\n"[random() % 6]);
    return text;
  };
  for (int round = 0; round < 500; ++round) {
    for (int number = 1; number <= 5; ++number) exam.Question(number).text = draw();
    const TextSearch search({round % 2 == 0 ? u"a" : u"a+", round % 2 != 0});
    const ReplacementPlan plan = PlanReplacements(exam, search, ReplacementText(u"<>", false));
    std::vector<PlannedReplacement> chosen;
    std::vector<std::u16string> left;
    for (const PlannedReplacement& planned : plan.replacements) {
      if (random() % 2 == 0) {
        chosen.push_back(planned);
      } else {
        left.push_back(TextAt(exam, planned.hit.place)->substr(planned.hit.start, planned.hit.length));
      }
    }
    std::size_t made = 0;
    for (const FieldRewrite& rewrite : RewriteFields(exam, chosen)) {
      ASSERT_EQ(*TextAt(exam, rewrite.place), rewrite.before);
      std::u16string outside = rewrite.before;
      for (auto planned = chosen.rbegin(); planned != chosen.rend(); ++planned) {
        if (planned->hit.place == rewrite.place) outside.erase(planned->hit.start, planned->hit.length);
      }
      *TextAt(exam, rewrite.place) = rewrite.after;
      std::u16string outsideAfter = rewrite.after;
      for (std::size_t at; (at = outsideAfter.find(u"<>")) != std::u16string::npos; ++made)
        outsideAfter.erase(at, 2);
      EXPECT_EQ(outsideAfter, outside);
    }
    EXPECT_EQ(made, chosen.size());
    std::vector<std::u16string> found;
    for (const SearchHit& hit : FindAll(exam, search).hits)
      found.push_back(TextAt(exam, hit.place)->substr(hit.start, hit.length));
    EXPECT_EQ(found, left);
  }
}

}  // namespace
}  // namespace quorvantis::test

// SPDX-License-Identifier: MIT
#include "ImportTest.h"
#include "import/marking/ParseAnswer.h"
#include "model/document/FrameSetExam.h"
#include "platform/posix/PosixFiles.h"
#include "support/TemporaryFolder.h"

namespace quorvantis::test {
namespace {

TEST(QuestionParsing, CutsAtMarkers) {
  ImportSettings rules;
  rules.m_strPattern = u"(?<Q1>.*)";
  struct {
    std::u16string text;
    std::u16string questions;
  } const rows[] = {
      {u"", u""},
      {u"x!!!!!Q one@@@@@B!!!!!Q two@@@@@A!!!!!", u"choice|Q one|B8\nchoice|Q two|A16\n"},
      {u"lost|a@@@@@C", u"choice||a|C4\n"},
      {u"abc", u""},
      {u"!!!!!a@@@@@ab!!!!!b@@@@@CA!!!!!c@@@@@AA", u"choice|a|\nchoice|b|AC20\nchoice|c|A16\n"},
      {u"!!!!!a!!!!!b@@@@@EDCBA@@@@@", u"choice|b|ABCDE31\n"},
      {u"!!!!!a\u3000b@@@@@A$$$$$!!!!!c@@@@@B", u"choice|a b|AB24\n"},  // the last character stays
      {u"!!!!!a$$$$$!!!!!b@@@@@", u""},
      {u"!!!!!a&&&&&b&&&&&c#####d#####@@@@@A!!!!!e#####@@@@@B",
       u"choice|a&&&&&b&&&&&c  7.bmp|A16\nchoice|e  8.bmp|B8\n"},
      {u"!!!!!a&&&&&&&&&&#####@@@@@A", u"choice|a&&&&&&&&&&  6.bmp|A16\n"},
      {u"!!!!!dropped&&&&&#####!!!!!a#####@@@@@A", u"choice|a  5.bmp|A16\n"},  // no answer: not parsed
      {u"!!!!!a#####@@@@@A!!!!!a######@@@@@A", u"choice|a  5.bmp|A16\nchoice|a  6.bmp|A16\n"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Listed(Parsed(rules, row.text, 5)), row.questions) << testing::PrintToString(row.text);
  }
  rules.m_strPattern = u"(?<Q1>[^x]+)$(?<!x.*)";
  EXPECT_EQ(Listed(Parsed(rules, u"!!!!!x#####@@@@@A!!!!!a#####@@@@@A", 5)), u"choice|a  6.bmp|A16\n");
}

TEST(QuestionParsing, DecidesTheKind) {
  ImportSettings rules;
  rules.m_strPattern = u"(?<q1>[^|]*)\\|(?<q2>[^|]*)\\|((?<a>[^|]*)\\|(?<c>.*))?";
  EXPECT_EQ(
      Listed(Parsed(rules, u"!!!!!q|r|x|y@@@@@ C!!!!!|a ___|@@@@@ans!!!!!|why?|@@@@@be\rcause!!!!!none")),
      u"choice|qr|x;y;C4\nfill-in|a ___|ans\nessay|why?|be\rcause\n");
  EXPECT_EQ(Parsed(rules, u"!!!!!none@@@@@").dropped[0].key, u"Pattern");
  EXPECT_EQ(Parsed(rules, u"!!!!! \r none").dropped[0].key, u"PreAnswer");
  EXPECT_EQ(Parsed(rules, u"!!!!! \r none").dropped[0].text, u"none");
  EXPECT_EQ(Parsed(rules, u"no question mark").dropped[0].text, u"no question mark");

  rules.m_strChoiceAnswerPattern = u"Keys:.*";
  rules.m_strChoiceAnswer = u"\\d\\.[A-E]+";
  EXPECT_EQ(Listed(Parsed(rules, u"!!!!!q|||!!!!!|s|@@@@@lost!!!!!t|||!!!!!u|||$$$$$Keys:1.BD 2.A")),
            u"choice|q|BD10\nessay|s|\nchoice|t|A16\nchoice|u|A;\n");
  rules.m_strJudgementAnswerPattern = u"TF:[^K]*";
  rules.m_strJudgementAnswer = u"[TF](?!:|F:)";
  EXPECT_EQ(Listed(Parsed(rules, u"!!!!!q|||!!!!!|s ___|!!!!!|t|!!!!!|u|$$$$$TF:TFT Keys:1.BD")),
            u"choice|q|BD10\ntrue/false|s ___|T;F;A16\ntrue/false|t|T;F;B8\ntrue/false|u|T;F;A16\n");
  EXPECT_EQ(Listed(Parsed(rules, u"!!!!!|s|!!!!!|t|$$$$$TF:F ")),
            u"true/false|s|F;A16\ntrue/false|t|F;B8\n");  // missing answers are empty
  rules.m_strJudgementAnswer = u"T?";
  EXPECT_EQ(Parsed(rules, u"!!!!!|s|$$$$$TF:F ").failure->key, u"JudgementAnswer");
}

TEST(AnswerBlocks, GiveTheSymbolsOfTrueAndFalse) {
  struct {
    std::vector<std::u16string> answers;
    std::u16string first;
    std::u16string second;
  } const rows[] = {
      {{u"T", u"F", u"T"}, u"T", u"F"},
      {{u"1.T", u"2.F", u"3.T"}, u"T", u"T"},
      {{u"1.T", u"2.F"}, u"T", u"F"},
      {{u"t", u"T", u"f", u"F"}, u"t", u"F"},
      {{u"\u0416", u"\u0436"}, u"\u0416", u"\u0436"},
      {{u"1.", u"2.F"}, u"", u"F"},
      {{u"", u"F"}, u"?", u"?"},
      {{}, u"?", u"?"},
  };
  for (const auto& row : rows) {
    std::u16string first = u"?";
    std::u16string second = row.first == u"?" ? u"?" : u"";
    PickJudgementSymbols(row.answers, first, second, 1);
    EXPECT_EQ(first + u"/" + second, row.first + u"/" + row.second);
  }
  std::u16string first;
  PickJudgementSymbols({u"T"}, first, first, 0);
  EXPECT_EQ(first, u"");
}

TEST(AnswerBlocks, AreTakenApartFromTheFront) {
  RecordingDebug debug;
  std::vector<std::u16string> answers{u"x"};
  const RuleSearch block(u"B", u"<.*>", kNeverCancelled);
  EXPECT_EQ(ParseAnswer(u"ab", RuleSearch(u"I", u"ab", kNeverCancelled), block, answers, debug), 0);
  EXPECT_EQ(ParseAnswer(u"ab<aabb>", RuleSearch(u"I", u"ab", kNeverCancelled), block, answers, debug), 1);
  EXPECT_EQ(answers, (std::vector<std::u16string>{u"x", u"ab", u"ab"}));  // erasing one makes another
  EXPECT_EQ(debug.lines[0], u"FrameSetExam::ParseAnswer<aabb>");
  EXPECT_EQ(debug.lines[1], u"FrameSetExam::ParseAnswerab");
}

TEST(QuestionParsing, WritesSlotsUpToTheLastOne) {
  TemporaryFolder folder;
  PosixFiles files;
  RecordingWorld world(folder.Path(), files);
  FrameSetExam exam(world.services);
  exam.Question(499).essayAnswer = u"kept";
  exam.Question(499).options[4] = u"gone";
  const std::u16string text = u"!!!!!q___@@@@@A!!!!!r@@@@@B!!!!!s@@@@@C";
  ImportSettings rules;
  ReadPaper paper;
  const auto parse = [&](int firstSlot) {
    return exam.ParseQuestions(firstSlot, 1, text, rules, kNeverCancelled, paper);
  };
  rules.m_strPattern = u"(?<Q1>.+)";
  EXPECT_EQ(parse(499), 501);
  EXPECT_EQ(exam.Question(499).text + exam.Question(499).options[4] + exam.Question(499).essayAnswer,
            u"q___kept");
  EXPECT_EQ(exam.Question(500).answerLetters, u"B");
  rules.m_strPattern = u"(?<Q2>.+)";
  EXPECT_EQ(parse(3), 6);
  EXPECT_EQ(exam.Question(3).kind, QuestionKind::FillIn);
  EXPECT_EQ(exam.Question(3).answerText + exam.Question(4).essayAnswer, u"AB");
  rules.m_strJudgementAnswer = u"x*";
  rules.m_strJudgementAnswerPattern = u".+";
  EXPECT_EQ(parse(7), 7);
  ASSERT_TRUE(paper.failure);
  EXPECT_EQ(FailureText(*paper.failure, world.services.strings), u"[1131 JudgementAnswer]");
}

}  // namespace
}  // namespace quorvantis::test

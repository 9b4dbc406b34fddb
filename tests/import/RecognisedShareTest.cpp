// SPDX-License-Identifier: MIT
#include "import/RecognisedShare.h"
#include "marking/ImportTest.h"

namespace quorvantis::test {
namespace {

ImportSettings LetteredRules() {
  ImportSettings rules;
  rules.m_strPreQuestion = u"\\d+\\. ";
  rules.m_strPreAnswer = u"Key:";
  rules.m_strPattern = u"(?<Q1>.+)A\\)(?<A>.+)B\\)(?<B>[^\\r]+)|(?<Q2>.+)";
  return rules;
}

TEST(RecognisedShare, IsLittleWhereMostOfAPaperIsLost) {
  const std::u16string good = u"1. 1+1?\rA) 2\rB) 3\rKey:A\r2. Why?\rKey:because\r";
  const std::u16string story =
      u"A long story that no rule knows, and it goes on and on and on without end.\r";
  ImportSettings keyed = LetteredRules();
  keyed.m_strPreAllAnswer = u"Keys";
  keyed.m_strChoiceAnswerPattern = u"Keys(.+)|\\$\\$\\$\\$\\$(.+)";
  keyed.m_strChoiceAnswer = u"\\d[AB]";
  const std::u16string unkeyed = u"1. 1+1?\rA) 2\rB) 3\r2. 1+2?\rA) 2\rB) 3\r";
  const struct {
    std::u16string text;
    bool isLittle;
    ImportSettings rules = LetteredRules();
    std::size_t tableUnits = 0;
  } rows[] = {
      {u"", false},
      {good, false},
      {good + good + u"Good luck!\r", false},
      {story + good, true},
      {u"Question one: why?\rAnswer: because\r", true},           // not a question
      {good + u"3. no key\r4. no key\r5. no key\r", true},        // more dropped than read
      {good, true, LetteredRules(), 100},                         // most of it is in tables
      {unkeyed, true},                                            // all dropped
      {unkeyed + u"Keys 1A 2B " + story, false, keyed},           // explanations beside the key
      {unkeyed + u"Answers 1A 2B " + story + story, true, keyed}  // not found
  };
  for (const auto& row : rows) {
    ImportReport report;
    report.rules = row.rules;
    report.content.emplace().text = row.text;
    report.content->tableUnits = row.tableUnits;
    report.marked = TextToString(row.text, row.rules, kNeverCancelled);
    report.paper = Parsed(row.rules, report.marked.text);
    EXPECT_EQ(RecognisesLittle(report), row.isLittle) << testing::PrintToString(row.text);
  }
}

}  // namespace
}  // namespace quorvantis::test

// SPDX-License-Identifier: MIT
#include "ImportTest.h"

#include <random>

namespace quorvantis::test {
namespace {

using Rule = std::u16string ImportSettings::*;

TEST(TextMarking, ReplacesMatchesInSevenPasses) {
  struct {
    std::vector<std::pair<Rule, std::u16string>> rules;
    std::u16string text;
    std::u16string marked;
  } const rows[] = {
      {{}, u"1. a", u"1. a"},
      {{{&ImportSettings::m_strPreQuestion, u"\\d\\."}, {&ImportSettings::m_strPreAnswer, u"Key:"}},
       u"1.aKey:b2.cKey:d",
       u"!!!!!a@@@@@b!!!!!c@@@@@d"},
      {{{&ImportSettings::m_strPreQuestion, u"\\d\\."},
        {&ImportSettings::m_strPreParenQuestion, u"\\(\\d\\."}},
       u"(1.a2.b",
       u"!!!!!a!!!!!b"},
      {{{&ImportSettings::m_strBmp, u"#\\d"}, {&ImportSettings::m_strChoiceBmp, u"\\d\\.bmp"}},
       u"#1.bmp2.bmp",
       u"#####.bmp&&&&&"},
      {{{&ImportSettings::m_strPreAllAnswer, u"Keys"}}, u"aKeysbKeys", u"a$$$$$bKeys"},
      // A title swallows ten characters before it, and as many after it as are missing before it.
      {{{&ImportSettings::m_strTitle, u"TITLE"}}, u"abc0123456789TITLEd", u"abcd"},
      {{{&ImportSettings::m_strTitle, u"TITLE"}}, u"abcTITLE0123456789", u"789"},
      {{{&ImportSettings::m_strTitle, u"T"}, {&ImportSettings::m_strPreQuestion, u"Q"}},
       u"QQQ0Tx",
       u"!!!!!!x"},
      // Each search starts at the first character: text before a marker may match together with it.
      {{{&ImportSettings::m_strPreQuestion, u"x!*|Q"}}, u"axQb", u"a!!!!!!!!!!b"},
      {{{&ImportSettings::m_strPreQuestion, u"Q|a!{5}"}}, u"aaQb", u"!!!!!b"},
      // A pattern that does not compile matches nothing, and a text ends at its first NUL.
      {{{&ImportSettings::m_strPreQuestion, u"("}}, u"(", u"("},
      {{{&ImportSettings::m_strPreQuestion, u"Q"}}, std::u16string(u"Q\0Q", 3), u"!!!!!"},
  };
  for (const auto& row : rows) {
    ImportSettings rules;
    for (const auto& [rule, pattern] : row.rules) rules.*rule = pattern;
    EXPECT_EQ(Marked(rules, row.text), row.marked) << testing::PrintToString(row.text);
  }
}

TEST(TextMarking, TellsPassesThatNeverEnd) {
  struct {
    Rule rule;
    std::u16string pattern;
    std::u16string marked;
  } const rows[] = {
      {&ImportSettings::m_strPreQuestion, u"1|!", u"(endless PreQuestion)"},
      {&ImportSettings::m_strPreParenQuestion, u"b$|(?<=!)", u"(endless PreParenQuestion)"},
      {&ImportSettings::m_strPreAnswer, u"[^a]", u"(endless PreAnswer)"},
      {&ImportSettings::m_strBmp, u"(?=.)a?#{0,3}$", u"(endless Bmp)"},
      {&ImportSettings::m_strTitle, u"x*", u"(endless Title)"},
      // These look endless but end: in the text, at their own markers, after markers have grown for a while.
      {&ImportSettings::m_strPreAllAnswer, u"", u"a 12\nb"},
      {&ImportSettings::m_strPreAllAnswer, u"x*", u"$$$$$a 12\nb"},
      {&ImportSettings::m_strPreQuestion, u"^!(?!!{99})|a", std::u16string(101, u'!') + u" 12\nb"},
  };
  for (const auto& row : rows) {
    ImportSettings rules;
    rules.*row.rule = row.pattern;
    EXPECT_EQ(Marked(rules, u"a 12\nb"), row.marked) << testing::PrintToString(row.pattern);
  }
}

TEST(TextMarking, EndsWhenItIsCancelled) {
  ImportSettings rules;
  rules.m_strPreAnswer = u"(a|a\\b|b)*\\1{0}(?R)?c";
  const CancelHook cancelled = [] { return true; };
  const MarkedText marked = TextToString(u"aaaa", rules, cancelled);
  ASSERT_TRUE(marked.failure);
  EXPECT_EQ(marked.failure->reason, ImportFailure::Reason::Cancelled);
}

/// Replaces as the rule says, always starting at the first character.
std::u16string ReplacedNaively(std::u16string text, const std::u16string& pattern) {
  const RegexPattern compiled(pattern, 3);
  for (int count = 0; count < 300; ++count) {
    const MatchResult match = compiled.Match(text);
    if (!match.IsMatched()) return text;
    text.replace(static_cast<std::size_t>(match.GroupStart(0)),
                 static_cast<std::size_t>(match.GroupEnd(0) - match.GroupStart(0)), u"!!!!!");
  }
  return u"(endless PreQuestion)";
}

TEST(TextMarking, GoingOnFromTheLastMatchChangesNothing) {
  constexpr std::u16string_view kPieces[] = {
      u"a",     u"\\d",     u"\\r?\\n",    u"^",      u"$",        u"\\b",  u"(?<=a)", u"(?<!^)",
      u"(?!a)", u"(?=\\d)", u"\\s*",       u"a+?",    u"(?:1|a)",  u".",    u"|",      u"!",
      u"[^1]",  u"\\Z",     u"(?>a*)",     u"1{2}",   u"(a|1)",    u"\\1?", u"a!!",    u".*?",
      u"\\B",   u"(?g)\\G", u"(?<!1|\\r)", u"(?!.!)", u"(?<=\\b.)"};
  std::mt19937 random(7);  // NOLINT(bugprone-random-generator-seed): the same patterns every time
  for (int round = 0; round < 600; ++round) {
    ImportSettings rules;
    std::u16string text;
    for (auto i = random() % 4 + 1; i > 0; --i)
      rules.m_strPreQuestion += kPieces[random() % std::size(kPieces)];
    for (int i = 0; i < 12; ++i) text += u"aa1 \r\n!"[random() % 7];
    EXPECT_EQ(Marked(rules, text), ReplacedNaively(text, rules.m_strPreQuestion))
        << testing::PrintToString(rules.m_strPreQuestion) << testing::PrintToString(text);
  }
}

TEST(TableMarking, TakesQuestionsFromRows) {
  ImportSettings rules;
  rules.m_strTableQuesKey = u"Question";
  rules.m_strTableAnsKey = u"Answer";
  rules.m_strPreAnswer = u"Key:";
  using Cells = std::vector<std::vector<PaperCell>>;
  const auto marked = [&](const std::vector<Cells>& texts) {
    std::vector<PaperTable> tables;
    tables.reserve(texts.size());
    for (const Cells& rows : texts) tables.push_back({rows});
    return TableToString(tables, rules, kNeverCancelled).text;
  };
  EXPECT_EQ(marked({}), u"!!!!!");
  EXPECT_EQ(marked({Cells{{{u"No"}, {u"Question\r\u0007"}, {u"The Answer"}},
                          {{u"1"}, {u" Q 1 \t\r\u0007"}, {u"Key:A\r\u0007"}},
                          {{u"2"}, {u"Q 2"}, {u"see Key:B"}},  // cut by the label's length
                          {{u"3"}}},
                    Cells{{{u"Question"}}, {{u"no answers here"}}},
                    Cells{{{u"Question"}, {u"Answer"}, {u"Question Answer"}}, {{u"a"}, {u"b"}, {u"Key:c"}}}}),
            u"!!!!! Q 1@@@@@A!!!!!Q 2@@@@@Key:B!!!!!@@@@@!!!!!Key:c@@@@@c!!!!!");
  rules.m_strTableQuesKey.clear();
  rules.m_strTableAnsKey.clear();
  EXPECT_EQ(marked({Cells{{{u"a"}, {u"b"}}, {{u"1"}, {u"2"}}}}), u"!!!!!2@@@@@2!!!!!");
}

}  // namespace
}  // namespace quorvantis::test

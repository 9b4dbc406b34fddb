// SPDX-License-Identifier: MIT
#include "RegexTest.h"
#include "regex/RegexFlags.h"

namespace quorvantis::test {
namespace {

TEST(RegexPattern, NamesWithoutRegardToCase) {
  const RegexPattern pattern(u"(z)(?<Q1>x)(?'A'y)|(?P<q1>z)", 3);
  EXPECT_EQ(pattern.GetNamedGroupNumber(u"q1"), 2);
  EXPECT_EQ(pattern.GetNamedGroupNumber(u"a"), 3);
  EXPECT_EQ(pattern.GetNamedGroupNumber(u"B"), RegexPattern::kNoSuchGroup);
  EXPECT_EQ(GroupText(pattern.Match(u"_zxy"), 2, u"_zxy"), u"x");
  EXPECT_EQ(GroupText(pattern.Match(u"z"), 3, u"z"), u"");
}

TEST(RegexPattern, EmptyObjectsMatchNothing) {
  RegexPattern pattern;
  EXPECT_FALSE(pattern.Match(u"").IsMatched());
  pattern.Compile(u"(", 3);
  EXPECT_FALSE(pattern.Match(u"(").IsMatched());
  EXPECT_EQ(pattern.CompileError()->reason, "the group is not closed by )");
  pattern.Compile(u"", 3);
  EXPECT_TRUE(pattern.Match(u"").IsMatched());
  pattern.Compile({}, 3);
  EXPECT_TRUE(pattern.IsEmpty());
}

TEST(RegexPattern, ScansFromAPlace) {
  struct Case {
    int start;
    int flags;
    std::string bounds;
  };
  const Case cases[] = {{-1, 0, "0-1"},  {1, 0, "2-3"},   {3, 0, "no match"}, {4, 0, "no match"},
                        {-1, 16, "2-3"}, {99, 16, "2-3"}, {2, 16, "0-1"},     {0, 16, "no match"}};
  for (const Case& row : cases) {
    const RegexPattern pattern(u"a", row.flags);
    EXPECT_EQ(Bounds(pattern, pattern.Match(u"aba", row.start)), row.bounds) << row.start;
  }
}

TEST(RegexPattern, ContinuesWhereTheLastMatchEnded) {
  const RegexPattern pattern(u"\\G(a|b)", regex_flag::kGlobal);
  MatchContext context;
  int matches = 0;
  while (pattern.Match(u"abxa", -1, &context).IsMatched()) ++matches;
  EXPECT_EQ(matches, 2);
  EXPECT_EQ(pattern.Match(u"abxa", 3).GroupStart(0), 3)
      << "without a match before, it is where the scan begins";
}

/// Each of these would take longer than the age of the world if every way were tried, or would overflow a
/// stack.
TEST(RegexPattern, OrdinaryPatternsEnd) {
  const std::u16string as(5000, u'a');
  struct Case {
    std::u16string pattern;
    std::u16string text;
  };
  const Case cases[] = {{u"(a+)+b", as},
                        {u"(a|aa)+$", as + u"b"},
                        {u"(.*)*x", as},
                        {u"((a*)*)*b", as},
                        {u"(?:a?){30}a{30}b", as},
                        {u"(?:(?:(?:a{0,1000}){0,1000}){0,1000}){0,1000}b", as},
                        {u"(?:(?:a{0,2}?){999}){1,999}?b", as},
                        {u"(a{1,20}){1,20}b", as.substr(0, 400)},
                        {u"(?:(?=(a+)+b)a|a)*c", as},
                        {u"(?>(?:a|aa)+b|a)+c", as.substr(0, 500)},
                        {u"(a|aa)+?b", as},
                        {u"(?:(a|aa)+)+b|(x)\\2", as}};
  for (const Case& row : cases) {
    const RegexPattern pattern(row.pattern, 3);
    EXPECT_EQ(Bounds(pattern, pattern.Match(row.text)), "no match");
  }
  const std::u16string large(5'000'000, u'a');
  EXPECT_FALSE(RegexPattern(u"(a|b)*c", 3).Match(large).IsMatched());
  EXPECT_TRUE(RegexPattern(u"(?:a(b)?)*$", 3).Match(large).IsMatched());
}

}  // namespace
}  // namespace quorvantis::test

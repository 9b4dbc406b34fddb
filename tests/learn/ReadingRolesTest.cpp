// SPDX-License-Identifier: MIT
#include "learn/reading/ReadingRoles.h"

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

const CancelHook kNobodyCancels;

ImportSettings ExampleRules() {
  ImportSettings rules;
  rules.m_strPreQuestion = u"\\s*^[0-9]+[.]\\s*";
  rules.m_strPreAnswer = u"\\s*^Answer:[ ]*";
  rules.m_strPattern = u"(?<Q1>.+?)\\s*^A[.]\\s*(?<A>.+?)\\s*^B[.]\\s*(?<B>.+?)\\s*\\z|(?<Q2>.*\\S)";
  return rules;
}

/// The roles of the units of a paper as digits; 0 where nothing took them.
std::u16string RoleDigits(std::u16string_view text, const ImportSettings& rules) {
  const Paper paper = PaperOf(text);
  std::u16string digits;
  for (const RolePart& part : RolesOf(paper, ReadByRules(paper, rules, kNobodyCancels)))
    digits.append(part.span.Size(), static_cast<char16_t>(u'0' + static_cast<int>(part.role)));
  return digits;
}

TEST(ReadingRoles, FollowTheMarkingBackToThePaper) {
  EXPECT_EQ(RoleDigits(u"Test\n1. Why?\nA. x\nB. y\nAnswer: B\n2. How\nAnswer: so\n", ExampleRules()),
            u"888801102222033040330405555555060110222055555550666");
}

}  // namespace
}  // namespace quorvantis::test

// SPDX-License-Identifier: MIT
#include "text/ComparableText.h"
#include "text/ReadingOrder.h"

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

TEST(ComparableText, IsTheSameForBothFormsOfAText) {
  const std::pair<std::u16string_view, std::u16string_view> same[] = {
      {u"of\uFB01ce  hours\r\n", u"office\u00A0hours"},
      {u"\u0627\u0644\u0625\u062C\u0627\u0628\u0629", u"\u0627\u0625\u0644\u062C\u0627\u0628\u0629"},
      {u"\uFEFB", u"\u0644\u0627"},
      {u"(a) [b]", u"\u202B)a( ]b[\u202C"},
      {u"co\u00ADoperate", u"cooperate"}};
  for (const auto& [one, other] : same) EXPECT_EQ(ComparableText(one), ComparableText(other));
  const std::pair<std::u16string_view, std::u16string_view> different[] = {
      {u"ab", u"ba"}, {u"A", u"B"}, {u"\u0644\u0628", u"\u0628\u0644"}, {u"1.5", u"15"}};
  for (const auto& [one, other] : different) EXPECT_NE(ComparableText(one), ComparableText(other));
}

TEST(ReadingOrder, WordsStandAsTheyAreRead) {
  const std::pair<std::u16string_view, std::u16string_view> lines[] = {
      {u"one two three", u"one two three"},
      {u"\u062C \u0628 \u0627", u"\u0627 \u0628 \u062C"},
      {u"see \u0628 \u0627 now", u"see \u0627 \u0628 now"},
      {u"\u062C big word \u0628 \u0627", u"\u0627 \u0628 big word \u062C"},
      {u"12 \u0628 \u0627", u"\u0627 \u0628 12"},
      {u"", u""}};
  for (const auto& [line, read] : lines) EXPECT_EQ(InReadingOrder(line), read);
}

}  // namespace
}  // namespace quorvantis::test

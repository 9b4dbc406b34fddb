// SPDX-License-Identifier: MIT
#include "render/Template.h"
#include "render/TextToHtml.h"

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

TEST(Template, FillsEveryKindOfPlace) {
  constexpr Template<int, Text, char16_t, int, float> kAll{uR"(%d|%s|%c|%03d|%1.2f|%%)"};
  EXPECT_EQ(kAll(-7, u"%d <b>\\r", u'E', 7, 2.5F), u"-7|%d <b>\\r|E|007|2.50|%");
}

TEST(Template, KnowsTheEscapesOfLiterals) {
  constexpr Template<> kEscapes{uR"(\r\n\t\\\\r "\\"" \\\r\n)"};
  EXPECT_EQ(kEscapes(), u"\r\n\t\\\\r \"\\\"\" \\\r\n");
}

TEST(Template, FillsNumbersUpWithZeros) {
  constexpr Template<int> kNumber{uR"(%03d)"};
  EXPECT_EQ(kNumber(1000), u"1000");
  EXPECT_EQ(kNumber(-5), u"-05");
}

/// Exams with lone LFs have lost these characters always.
TEST(TextToHtml, TakesOneMoreCharacterWithEachLineEnd) {
  const std::pair<std::u16string_view, std::u16string_view> rows[] = {
      {u"", u""},
      {u"<b>&\"", u"<b>&\"<br>"},
      {u"one\r\ntwo\r\n", u"one<br>two<br>"},
      {u"\r\n\r\n", u"<br><br>"},
      {u"one\ntwo\rthree", u"one<br>wo<br>hree<br>"},
      {u"one\n\r\ntwo\n", u"one<br><br>wo<br>"},
      {u"a\n\U0001F600", u"a<br>\xDE00<br>"},  // half of a pair may go
  };
  for (const auto& [text, html] : rows) EXPECT_EQ(TextToHtml(text), html);
}

}  // namespace
}  // namespace quorvantis::test

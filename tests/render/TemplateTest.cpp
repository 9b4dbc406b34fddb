// SPDX-License-Identifier: MIT
#include "render/Template.h"
#include "render/TextToHtml.h"

#include <gtest/gtest.h>

#include <limits>

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
  const struct {
    int number;
    std::u16string_view text;
  } rows[] = {{0, u"000"}, {12, u"012"}, {999, u"999"}, {1000, u"1000"}, {-5, u"-05"}, {-500, u"-500"}};
  for (const auto& row : rows) EXPECT_EQ(kNumber(row.number), row.text);
  EXPECT_EQ(kNumber(std::numeric_limits<int>::min()), u"-2147483648");
}

TEST(TextToHtml, TakesOneMoreCharacterWithEachLineEnd) {
  const struct {
    std::u16string_view text;
    std::u16string_view html;
  } rows[] = {
      {u"", u""},
      {u"one", u"one<br>"},
      {u"one\r\ntwo", u"one<br>two<br>"},
      {u"one\r\n", u"one<br>"},
      {u"\r\n\r\n", u"<br><br>"},
      {u"one\ntwo\nthree",
       u"one<br>wo<br>hree<br>"},  // exams with lone LFs have lost these characters always
      {u"one\rtwo", u"one<br>wo<br>"},
      {u"one\n\r\ntwo", u"one<br><br>wo<br>"},
      {u"one\n", u"one<br>"},
      {u"<b>&\"", u"<b>&\"<br>"},
      {u"a\n\U0001F600b",
       u"a<br>\xDE00"
       u"b<br>"},  // half of a pair may go
  };
  for (const auto& row : rows) EXPECT_EQ(TextToHtml(row.text), row.html) << testing::PrintToString(row.text);
}

}  // namespace
}  // namespace quorvantis::test

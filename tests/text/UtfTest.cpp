// SPDX-License-Identifier: MIT
#include "text/MessageText.h"
#include "text/Utf.h"

#include <gtest/gtest.h>

namespace quorvantis {
namespace {

using namespace std::string_literals;

TEST(Utf, WellFormedTextSurvivesBothWays) {
  const auto text = u"a\0\u007F\u0080\u07FF\u0800\uD7FF\uE000\uFFFF\U00010000\U0001F600\U0010FFFF"s;
  EXPECT_EQ(Utf8ToUtf16(Utf16ToUtf8(text)), text);
  EXPECT_EQ(Utf16ToUtf8(u"\u00E9\u20AC\U0001F600"), "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
}

TEST(Utf, EveryByteThatStartsNoCharacterIsReplaced) {
  for (const std::string malformed : {"\x80", "\xC0\x80", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF",  // overlong
                                      "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xF5\x80\xFF",  // no characters
                                      "\xC3", "\xE2\x82", "\xF0\x9F\x98"}) {               // cut off
    const std::u16string replaced(malformed.size(), u'\uFFFD');
    EXPECT_EQ(Utf8ToUtf16(malformed), replaced) << testing::PrintToString(malformed);
    EXPECT_EQ(Utf8ToUtf16(malformed + "\xC3\xA9z"), replaced + u"\u00E9z")
        << testing::PrintToString(malformed);
  }
}

TEST(Utf, SurrogatesWithoutAPartnerAreReplaced) {
  const auto check = [](std::u16string_view text, std::u16string_view whole) {
    EXPECT_EQ(ReplaceLoneSurrogates(text), whole);
    EXPECT_EQ(Utf8ToUtf16(Utf16ToUtf8(text)), whole);
  };
  check(u"a\xD800", u"a\uFFFD");
  check(u"\xDE00\xD83Dz", u"\uFFFD\uFFFDz");
  check(u"\xD83D\xD83D\xDE00\xDE00", u"\uFFFD\U0001F600\uFFFD");
}

TEST(FillMessage, CountsInTheFormsOfTheText) {
  const struct {
    std::u16string format;
    std::vector<std::pair<std::u16string, std::u16string>> messages;
  } rows[] = {
      {u"{%1|1:%1 question|%1 questions} read", {{u"1", u"1 question read"}, {u"0", u"0 questions read"}}},
      {u"{%1|0:none|1:one|2:two|*03-10:%1 few|*11-99:%1 many|%1 other}",
       {{u"0", u"none"},
        {u"2", u"two"},
        {u"3", u"3 few"},
        {u"10", u"10 few"},
        {u"11", u"11 many"},
        {u"99", u"99 many"},
        {u"100", u"100 other"},
        {u"102", u"102 other"},
        {u"103", u"103 few"}}},
      {u"{%1|*11-14:%1m|*1:%1o|*2-4:%1f|%1m}",
       {{u"1", u"1o"}, {u"4", u"4f"}, {u"12", u"12m"}, {u"21", u"21o"}, {u"111", u"111m"}}},
      {u"{%1|1:it|0,5-7:some|}.", {{u"1", u"it."}, {u"6", u"some."}, {u"8", u"."}, {u"x", u"."}}},
      {u"{%1}{a|b}{%1", {{u"1", u"{1}{a|b}{1"}}},
      {u"{%1|}{%1|:a|b}{%2|c}{%1|{%1|d}", {{u"1", u":a{%2|c}{1"}}},
  };
  for (const auto& row : rows) {
    for (const auto& [number, message] : row.messages)
      EXPECT_EQ(FillMessage(row.format, {number}), message) << testing::PrintToString(number);
  }
  EXPECT_EQ(FillMessage(u"{%3|1:a %2|b} %1 {%1|2:c|d} %2", {u"2", u"{%1", u"1"}), u"a {%1 2 c {%1");
}

TEST(FillMessage, NoFormatBreaksAMessage) {
  EXPECT_EQ(FillMessage(u"Open file %s error!", {u"/a/%s%d"}), u"Open file /a/%s%d error!");
  EXPECT_EQ(FillMessage(u"%d of %s", {u"1"}), u"1 of %s");
  EXPECT_EQ(FillMessage(u"100% %x %", {u"unused"}), u"100% %x %");
  EXPECT_EQ(FillMessage(u"%2 %0 %3 %1", {u"%2", u"b"}), u"b %0 %3 %2");
}

}  // namespace
}  // namespace quorvantis

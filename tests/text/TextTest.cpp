// SPDX-License-Identifier: MIT
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <gtest/gtest.h>

#include <clocale>
#include <limits>
#include <locale>

namespace quorvantis::test {
namespace {

using namespace std::literals;

template <class Parse, class Value>
void ExpectAll(Parse parse, std::initializer_list<std::u16string_view> texts, Value value) {
  for (const auto text : texts) EXPECT_EQ(parse(text), value) << testing::PrintToString(text);
}

TEST(ParseInteger, FollowsAtoiAndStopsAtTheLimits) {
  ExpectAll(ParseInteger, {u"", u"-", u"- 5", u"+-5", u"--5", u"x1", u"0x10", u"nan", u".5"}, 0);
  // Blanks and digits of other scripts, and a unit whose low byte is a digit.
  ExpectAll(ParseInteger, {u"\u00A05", u"\uFF15", u"\u0665", u"\x0135"}, 0);
  ExpectAll(ParseInteger,
            {u"12", u" \t\n\v\f\r12", u"+12", u"0012", u"12abc", u"12 3", u"12\0003"sv, u"12e3"}, 12);
  ExpectAll(ParseInteger, {u"-12", u" -12.9", u"-12\uFF10"}, -12);
  ExpectAll(ParseInteger, {u"2147483647", u"2147483648", u"99999999999999999999"}, 2147483647);
  ExpectAll(ParseInteger, {u"-2147483648", u"-2147483649", u"-99999999999999999999"}, -2147483647 - 1);
  EXPECT_EQ(ParseInteger64(u"4294967296"), 4294967296);
  constexpr std::int64_t kMax = std::numeric_limits<std::int64_t>::max();
  ExpectAll(ParseInteger64, {u"9223372036854775807", u"9223372036854775808", u"99999999999999999999"}, kMax);
  EXPECT_EQ(ParseInteger64(u"9223372036854775806"), kMax - 1);
  ExpectAll(ParseInteger64, {u"-9223372036854775808", u"-9223372036854775809"}, -kMax - 1);
}

TEST(ParseReal, FollowsAtofForDecimalTextOnly) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  ExpectAll(ParseReal, {u"", u".", u"e5", u"- 1", u"+-1", u"nan", u"inf", u"0x1A", u"\uFF11", u"1e-999"}, 0);
  ExpectAll(ParseReal, {u"1.50", u" \t+1.5x", u"1.5e", u"1.5e+", u"1.5.3", u"15E-1", u".15e+1", u"1.5-2"},
            1.5);
  ExpectAll(ParseReal, {u"-1", u"-1,5", u"-1.", u"-1\uFF0E5"}, -1);
  EXPECT_EQ(ParseReal(u"1e999"), kInfinity);
  EXPECT_EQ(ParseReal(u"1e999-5"), kInfinity);
  EXPECT_EQ(ParseReal(u"0." + std::u16string(400, u'0') + u"1"), 0);
}

TEST(FormatScore, HasTwoDecimalsOfTheWidenedValue) {
  EXPECT_EQ(FormatScore(7.005F), u"7.01");  // as a float slightly more than its text says
  EXPECT_EQ(FormatScore(1.005F), u"1.00");  // and this one slightly less
  EXPECT_EQ(FormatScore(0.125F), u"0.12");
  EXPECT_EQ(FormatScore(12345.67F), u"12345.67");
  EXPECT_EQ(FormatScore(std::numeric_limits<float>::max()), u"340282346638528859811704183484516925440.00");
}

TEST(NumberText, IsTheSameInEveryLocale) {
  struct Commas : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    std::string do_grouping() const override { return "\3"; }
  };
  const std::locale before = std::locale::global(std::locale(std::locale(), new Commas));
  // Not on every machine; the locale above is. NOLINTNEXTLINE(concurrency-mt-unsafe)
  std::setlocale(LC_ALL, "de_DE.UTF-8");
  EXPECT_EQ(FormatScore(1.5F), u"1.50");
  EXPECT_EQ(FormatInteger(-1234567), u"-1234567");
  EXPECT_EQ(ParseReal(u"1.50"), 1.5);
  std::setlocale(LC_ALL, "C");  // NOLINT(concurrency-mt-unsafe)
  std::locale::global(before);
}

TEST(PathText, EveryFileNameSurvivesTheWayThereAndBack) {
  for (const char* name :
       {"plain", "caf\xC3\xA9", "caf\xE9", "\xFF", "cut\xE2\x82", "\xED\xA0\x80", "\xC0\x80",
        "\xF0\x9F\x92\x80", "\xF0\x9F\x92\x80\x80", "\xF0\x9F\x92\xFF\xF0\x9F\x92\x80"}) {
    const std::filesystem::path path = std::filesystem::path("/folder \x80") / name;
    EXPECT_EQ(TextToPath(PathToText(path)).native(), path.native());
  }
  EXPECT_EQ(PathToText("/caf\xC3\xA9/\xF0\x9F\x98\x80\xFF"), u"/caf\u00E9/\U0001F600\xDCFF");
  EXPECT_EQ(TextToPath(u"a\xD800z\xDC7F\xDD00").native(), "a\xEF\xBF\xBDz\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(FitFileName, LongNamesStayApartAndKeepTheirExtension) {
  const auto check = [](const std::u16string& unit, const std::u16string& extension, std::size_t maxBytes) {
    std::u16string name;
    for (int i = 0; i < 300; ++i) name += unit;
    const std::u16string fitted = FitFileName(name + extension, maxBytes);
    EXPECT_LE(TextToPath(fitted).native().size(), maxBytes);
    EXPECT_EQ(ReplaceLoneSurrogates(fitted), fitted) << "cut inside a character";
    EXPECT_TRUE(fitted.starts_with(unit) && fitted.ends_with(extension));
    EXPECT_EQ(FitFileName(name + extension, maxBytes), fitted);
    for (const std::u16string& other : {name + unit, name + u"x", u"x" + name}) {
      EXPECT_NE(FitFileName(other + extension, maxBytes), fitted);
    }
  };
  for (const std::u16string unit : {u"a", u"\u00E9", u"\u8A66", u"\U0001F600"}) {
    for (const std::u16string extension : {u"", u".doc", u".\u8A66"}) {
      for (const std::size_t maxBytes : {64u, 65u, 66u, 67u, 255u}) check(unit, extension, maxBytes);
    }
  }
  const std::u16string exact(85, u'\u8A66');
  EXPECT_EQ(FitFileName(exact), exact);
  const std::u16string noExtension = u"a." + std::u16string(300, u'b');
  EXPECT_EQ(TextToPath(FitFileName(noExtension)).native().size(), 255u);
}

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
  EXPECT_EQ(FillMessage(u"%2 %0 %3 %1", {u"%2", u"b"}), u"b %0 %3 %2");
  EXPECT_EQ(FillMessage(u"100% %x %", {u"unused"}), u"100% %x %");
}

}  // namespace
}  // namespace quorvantis::test

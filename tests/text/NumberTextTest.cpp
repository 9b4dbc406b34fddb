// SPDX-License-Identifier: MIT
#include "text/NumberText.h"

#include <gtest/gtest.h>

#include <clocale>
#include <limits>
#include <locale>

namespace quorvantis {
namespace {

using namespace std::string_view_literals;

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
  EXPECT_EQ(FormatScore(7.005F), u"7.01");  // as a float a little more than its text says
  EXPECT_EQ(FormatScore(1.005F), u"1.00");  // and this one a little less
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

}  // namespace
}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "text/ScriptDigits.h"

#include <gtest/gtest.h>

#include <string_view>

namespace quorvantis::test {
namespace {

TEST(DigitValueOf, KnowsEveryScript) {
  // ASCII, Arabic, Persian, Devanagari, Tamil, Thai, Khmer, full width
  constexpr std::u16string_view kSevens = u"7\u0667\u06F7\u096D\u0BED\u0E57\u17E7\uFF17";
  for (const char16_t seven : kSevens) EXPECT_EQ(DigitValueOf(seven), 7) << static_cast<int>(seven);
  for (const char16_t zero : kZerosOfScripts) {
    EXPECT_EQ(DigitValueOf(zero), 0) << static_cast<int>(zero);
    EXPECT_EQ(DigitValueOf(static_cast<char16_t>(zero + 9)), 9) << static_cast<int>(zero);
  }
  constexpr std::u16string_view kOthers = u"/:a\u00B2\u065F\u066A\u4E03\u2460\uFF0F\uFF1A\uFFFF";
  for (const char16_t other : kOthers) EXPECT_EQ(DigitValueOf(other), -1) << static_cast<int>(other);
}

}  // namespace
}  // namespace quorvantis::test

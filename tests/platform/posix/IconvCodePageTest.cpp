// SPDX-License-Identifier: MIT
#include "platform/posix/IconvCodePage.h"

#include <gtest/gtest.h>

namespace quorvantis {
namespace {

TEST(IconvCodePage, DecodesAndReplacesWhatIsMalformed) {
  const auto check = [](const char* name, std::string_view bytes, std::u16string_view text) {
    EXPECT_EQ(IconvCodePage(name).Decode(bytes), text) << name << testing::PrintToString(bytes);
  };
  check("GBK", "", u"");
  check("GBK", "a\xC4\xE3\xBA\xC3z", u"a\u4F60\u597Dz");
  check("GBK", "\xC4\xE3\xBA", u"\u4F60\uFFFD");       // cut off
  check("GBK", "\xFF\xC4\xE3", u"\uFFFD\u4F60");       // no lead byte
  check("GBK", "\xC4\x20\xC4\xE3", u"\uFFFD \u4F60");  // the blank is not swallowed
  check("CP1258", "a\xE9", u"a\u00E9");                // held back in case an accent follows
  check("CP932", "\x83\x41\xB1", u"\u30A2\uFF71");
  check("CP1252", "\x80\x81\xE9", u"\u20AC\uFFFD\u00E9");
  check("UTF-8", "\xF0\x9F\x98\x80\xF0\x9F", u"\U0001F600\uFFFD\uFFFD");
  check("no such code page", "plain \x80\xE9", u"plain \u20AC\u00E9");
  const IconvCodePage codePage("GBK");
  EXPECT_EQ(codePage.Decode("\xC4"), u"\uFFFD");
  EXPECT_EQ(codePage.Decode("\xC4\xE3"), u"\u4F60") << "the byte before was another text";
  EXPECT_EQ(codePage.Encode(u"a\u4F60"), "a\xC4\xE3");
  EXPECT_EQ(codePage.Encode(u"\u4F60\u0E01"), std::nullopt) << "no Thai letter there";
  EXPECT_EQ(codePage.Encode(u"\xD800"), std::nullopt);
}

}  // namespace
}  // namespace quorvantis

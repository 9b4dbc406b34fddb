// SPDX-License-Identifier: MIT
#include "text/PathText.h"
#include "text/Utf.h"

#include <gtest/gtest.h>

namespace quorvantis {
namespace {

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

}  // namespace
}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "bank/index/FoldedText.h"
#include "text/Utf.h"

#include <gtest/gtest.h>

#include <random>

namespace quorvantis::test {
namespace {

TEST(FoldedText, IsTheSameForWhatUsersTakeForTheSame) {
  const std::u16string_view rows[][2] = {
      {u"\u00C9clair", u"eclair"},
      {u"E\u0301CLAIR", u"eclair"},
      {u"H<sub>2</sub>O", u"h2o"},
      {u"H\u2082O", u"h2o"},
      {u"a<br>b<p>c</p>d", u"a b c d"},
      {u"1 < 2 and 3>2", u"1 < 2 and 3>2"},
      {u"  x \t\r\n\u00A0\u3000 y ", u"x y"},
      {u"Stra\u00DFe", u"strasse"},
      {u"\u0391\u03A6\u0388\u03C2", u"\u03B1\u03C6\u03B5\u03C3"},
      {u"\u0401\u043B\u043A\u0430", u"\u0435\u043B\u043A\u0430"},
      {u"\u0623\u064E\u062D\u0652\u0645\u062F", u"\u0627\u062D\u0645\u062F"},
      {u"\u05E9\u05C1\u05B8\u05DC\u05D5\u05B9\u05DD", u"\u05E9\u05DC\u05D5\u05DD"},
      {u"\uFF30\uFF28\uFF17", u"ph7"},
      {u"\u0663\u06F4", u"34"},
      {u"\u201Cit\u2019s\u201D", u"\"it's\""},
      {u"5\u20137", u"5-7"},
      {u"R&amp;D &lt;x&gt;", u"r&d <x>"},
      {u"caf&eacute; &#x41;&#66;&nbsp;&pi; &unknown; AT&T", u"cafe ab \u03C0 &unknown; at&t"},
      {u"a&#1;b&#0;", u"a b\uFFFD"},
      {u"\u7EC6\u80DE", u"\u7EC6\u80DE"},
      {u"a\u0001b\0c", u"a b"},
  };
  for (const auto& [text, folded] : rows) EXPECT_EQ(FoldForSearch(text), folded);
}

bool IsSurrogate(char16_t unit) {
  return IsHighSurrogate(unit) || IsLowSurrogate(unit);
}

/// Any unit, more often those that are folded in some way.
std::u16string RandomUnits(std::mt19937& random) {
  const std::u16string_view often = u"aA \u00E9\u0301\u064E<b>&lt;\u3000\u4E2D\u00DF\uFF21\u2026";
  std::u16string text;
  for (std::size_t left = random() % 40; left > 0; --left)
    text.push_back(random() % 3 == 0 ? static_cast<char16_t>(random()) : often[random() % often.size()]);
  return text;
}

TEST(FoldedText, LeadsBackToTheOriginal) {
  std::mt19937 random(11);
  for (int i = 0; i < 2000; ++i) {
    const std::u16string text = RandomUnits(random);
    const FoldedText folded(text);
    ASSERT_EQ(folded.Text(), FoldForSearch(text));
    ASSERT_EQ(folded.Text().find(kBetweenTexts), std::u16string::npos);
    std::size_t last = 0;
    for (std::size_t at = 0; at < folded.Text().size(); ++at) {
      const TextSpan origin = folded.Original({at, at + 1});
      ASSERT_LT(origin.begin, origin.end);
      ASSERT_LE(origin.end, text.size());
      ASSERT_LE(last, origin.begin);
      last = origin.begin;
      const bool isLetter =
          origin.Size() == 1 && folded.Text()[at] != u' ' && !IsSurrogate(folded.Text()[at]);
      const std::u16string again = FoldForSearch(origin.Of(text));
      ASSERT_TRUE(!isLetter || again.find(folded.Text()[at]) != std::u16string::npos);
    }
  }
}

}  // namespace
}  // namespace quorvantis::test

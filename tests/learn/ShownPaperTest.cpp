// SPDX-License-Identifier: MIT
#include "learn/reading/ShownPaper.h"

#include <gtest/gtest.h>

#include <random>

namespace quorvantis::test {
namespace {

/// A paper with a table of one row.
Paper PaperWithTable() {
  Paper paper = PaperOf(u"x\ta\tb\r");
  paper.tables = {{{2, 6}, {{{2, 3}, {4, 5}}}}};
  return paper;
}

TEST(ShownPaper, ShowsSignsForWhatAWindowCannotShow) {
  EXPECT_EQ(ShownPaper(PaperOf(u"a\r\nb\vc\rd\n"), false).Text(), u"a\nb\nc\nd\n");
  EXPECT_EQ(ShownPaper(PaperOf(u"see 12.bmp , 7.bmp."), false).Text(), u"see \u25A312 , 7.bmp.");
  EXPECT_EQ(ShownPaper(PaperOf(u"##+##"), true).Text(), u"\u0192+\u0192");
  EXPECT_EQ(ShownPaper(PaperOf(u"##"), false).Text(), u"##");
  EXPECT_EQ(ShownPaper(PaperWithTable(), false).Text(), u"x\ta \u2502 b\n");
}

std::u16string RandomPaper(std::mt19937& random) {
  constexpr std::u16string_view kPieces[] = {u"a",  u" ",       u"\r", u"\n",   u"\r\n",
                                             u"##", u" 3.bmp ", u"\0", u"word "};
  std::u16string text;
  const auto pieces = random() % 3000;
  for (std::size_t i = 0; i < pieces; ++i) text += kPieces[random() % std::size(kPieces)];
  if (random() % 2 == 0) text += std::u16string(random() % 9000, u'x');
  return text;
}

TEST(ShownPaper, LeadsPlacesThereAndBack) {
  std::mt19937 random(7);
  for (int round = 0; round < 40; ++round) {
    const std::u16string text = RandomPaper(random);
    const ShownPaper shown(PaperOf(text), true);
    std::size_t last = 0;
    std::size_t lineBegin = 0;
    for (std::size_t at = 0; at <= text.size(); ++at) {
      const std::size_t place = shown.ToShown(at);
      ASSERT_GE(place, last);
      ASSERT_LE(place, shown.Text().size());
      ASSERT_LE(shown.ToSource(place), text.size());
      if (at < text.size() && text[at] == u'a') {
        ASSERT_EQ(shown.Text()[place], u'a');
        ASSERT_EQ(shown.ToSource(place), at);
      }
      last = place;
    }
    for (std::size_t at = 0; at < shown.Text().size(); ++at) {
      ASSERT_LE(at - lineBegin, ShownPaper::kLongestLine);
      if (shown.Text()[at] == u'\n') lineBegin = at + 1;
    }
  }
}

}  // namespace
}  // namespace quorvantis::test

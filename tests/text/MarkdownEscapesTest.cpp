// SPDX-License-Identifier: MIT
#include "text/MarkdownEscapes.h"

#include <gtest/gtest.h>

#include <random>

namespace quorvantis::test {
namespace {

TEST(MarkdownEscapes, ComeBackAsTheyWere) {
  constexpr std::u16string_view kPieces[] = {u"a", u" ",  u"_", u"____", u"\\",
                                             u"*", u"\n", u"#", u"]",    u"<b>"};
  std::mt19937 random(1);
  for (int i = 0; i < 2000; ++i) {
    std::u16string text;
    for (std::size_t count = random() % 8; count > 0; --count) text += kPieces[random() % std::size(kPieces)];
    EXPECT_EQ(UnprotectMarkdown(ProtectMarkdown(text)), text);
  }
  EXPECT_EQ(ProtectMarkdown(u"A ____ and *b*\n____"), u"A ____ and \\*b\\*\n\\____");
}

}  // namespace
}  // namespace quorvantis::test

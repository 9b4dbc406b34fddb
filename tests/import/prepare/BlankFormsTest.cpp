// SPDX-License-Identifier: MIT
#include "import/prepare/StepTable.h"
#include "platform/WordContent.h"

namespace quorvantis::test {
namespace {

TEST(BlankForms, BecomeTheBlankThatTheReadingKnows) {
  constexpr std::u16string_view kRows[][2] = {
      {u"（ ）是首都。", u"___是首都。"},
      {u"首都是（）。", u"首都是___。"},
      {u"It is (    ).", u"It is ___."},
      {u"It is [  ] or ( ).", u"It is ___ or ___."},
      {u"The sea is ...... today.", u"The sea is ___ today."},
      {u"The sea is …… .", u"The sea is ___ ."},
      {u"He has . . . . . cats.", u"He has ___ cats."},
      {u"It is __.", u"It is ___."},
      {u"It is _ _ _ _ today.", u"It is ___ today."},
      {u"它是＿＿。", u"它是___。"},
      {u"春天□□来了，3 + □ = 7", u"春天___来了，3 + ___ = 7"},
      {u"Water boils at      degrees.", u"Water boils at ___ degrees."},
      // None to fill in.
      {u"Tick: [ ] yes [ ] no", u"Tick: [ ] yes [ ] no"},
      {u"Tick:|[ ] yes|( ) no|□ never", u"Tick:|[ ] yes|( ) no|□ never"},
      {u"Call main( ) or main().", u"Call main( ) or main()."},
      {u"Explain it. .......... 5 points", u"Explain it. .......... 5 points"},
      {u"Explain it.|................|................", u"Explain it.|................|................"},
      {u"Well... he said", u"Well... he said"},
      {u"春天来了……花开了", u"春天来了……花开了"},
      {u"Guess: h _ _ s e", u"Guess: h _ _ s e"},
      {u"my_name and __init__", u"my_name and __init__"},
      {u"Use: cat     dog     bird", u"Use: cat     dog     bird"},
      {u"It is ___.", u"It is ___."},
      {u"It (    )|a) x|b) y", u"It (    )|a) x|b) y"},
  };
  for (const auto& row : kRows) {
    const std::u16string before = u"1. " + std::u16string(row[0]) + u"|Answer: ( )|2. x";
    const std::u16string after = u"1. " + std::u16string(row[1]) + u"|Answer: ( )|2. x";
    CheckStep({u"BlankForms", before, after});
  }
}

/// "_" stands for an underlined blank, and "~" for an underlined letter.
TEST(BlankForms, SeeUnderlinedBlanks) {
  constexpr std::u16string_view kRows[][2] = {
      {u"1. It is ____.", u"1. It is ___."},         {u"1. ____ is it.", u"1. ___ is it."},
      {u"1. It is ____|2. x", u"1. It is ___|2. x"}, {u"1. It is ~~_~~.", u"1. It is ee ee."},
      {u"1. It is ~~__.", u"1. It is ee  ."},
  };
  for (const auto& row : kRows) {
    Paper paper = PaperOf(Lines(row[0]));
    for (std::size_t i = 0; i < paper.source.Size(); ++i) {
      char16_t& unit = paper.source.characters[i];
      if (unit != u'_' && unit != u'~') continue;
      paper.source.emphasis[i] = emphasis::kUnderlined;
      unit = unit == u'_' ? u' ' : u'e';
    }
    const PaperText after = AfterStep(u"BlankForms", paper, PlainRules(), paper.source);
    EXPECT_EQ(after.characters, Lines(row[1]));
    CheckTracks(paper, after);
  }
}

}  // namespace
}  // namespace quorvantis::test

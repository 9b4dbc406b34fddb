// SPDX-License-Identifier: MIT
// Keys that are shown in the question itself: emphasised, or written into its blank.
#include "import/prepare/StepTest.h"
#include "platform/WordContent.h"

namespace quorvantis::test {
namespace {

/// Text in which what stands between braces has an emphasis: "B. {Rome}".
Paper EmphasisedPaper(std::u16string_view text, std::uint8_t kind) {
  WordContent document;
  WordText& running = document.runningText;
  for (const char16_t unit : text) {
    if (unit == u'{') {
      running.emphasis.push_back({running.characters.size(), 0, kind});
    } else if (unit == u'}') {
      running.emphasis.back().end = running.characters.size();
    } else {
      running.characters += unit == u'\n' ? u'\r' : unit;
    }
  }
  return PaperOf(document);
}

struct EmphasisCase {
  const char* name;
  std::u16string_view text;
  std::u16string_view answers;
};

constexpr EmphasisCase kEmphases[] = {
    {"texts", u"1. One?\nA. a\nB. {bee}\nC. c\n2. Two?\nA. {ant}\nB. b\nC. c\n", u"B|A|"},
    {"in a line", u"1. One?\nA. a  {B. bee}  C. c\n2. Two?\nA. a  B. b  {C. cat}\n", u"B|C|"},
    {"labels", u"1. One?\nA. a\n{B.} bee\nC. c\n2. Two?\n{A.} ant\nB. b\nC. c\n", u"B|A|"},
    {"a heading behind", u"1. One?\nA. a\nB. b\nC. {cat}\n{Part Two}\n2. Two?\nA. {a}\nB. b\nC. c\n{End}\n",
     u"C|A|"},
    {"most", u"1. One?\nA. {a}\nB. b\nC. c\n2. Two?\nA. a\nB. b\nC. c\n3. Three?\nA. a\nB. {b}\nC. c\n",
     u"A|B|"},
    {"words only", u"1. One?\nA. a {big} ant that is\nB. bee\n2. Two?\nA. ant\nB. a {small} bee there\n",
     u""},
    {"all", u"1. One?\n{A. a\nB. b}\n2. Two?\n{A. a\nB. b}\n", u""},
    {"stems", u"{1. One?}\nA. a\nB. b\n{2. Two?}\nA. a\nB. b\n", u""},
    {"one of many", u"1. O?\nA. a\nB. {b}\n2. T?\nA. a\nB. b\n3. T?\nA. a\nB. b\n", u""},
    {"own answer", u"1. One?\nA. {a}\nB. b\nAnswer: B\n", u""},
};

TEST(EmphasisedKey, IsWhatMostQuestionsShow) {
  for (const std::uint8_t kind : {emphasis::kBold, emphasis::kUnderlined, emphasis::kHighlighted}) {
    for (const EmphasisCase& test : kEmphases) {
      SCOPED_TRACE(test.name);
      EXPECT_EQ(AnswersIn(AfterSteps(u"EmphasisedKey", EmphasisedPaper(test.text, kind))), test.answers);
    }
  }
}

struct StemCase {
  const char* name;
  std::u16string_view before;
  std::u16string_view after;  ///< empty if nothing changes
};

constexpr StemCase kStems[] = {
    {"brackets", u"1. It is ( B ).\nA. a\nB. b\n2. It is (A).\nA. a\nB. b\n",
     u"1. It is (   ).\nA. a\nB. b\n⟦=⟧ B\n2. It is (   ).\nA. a\nB. b\n⟦=⟧ A\n"},
    {"full-width", u"1、是（ ＢＣ ）\nA．a　B．b　C．c\n2、是【c】\nA．a　B．b　C．c\n",
     u"1、是（   ）\nA．a　B．b　C．c\n⟦=⟧ BC\n2、是【   】\nA．a　B．b　C．c\n⟦=⟧ C\n"},
    {"underscores", u"1. It is __B__ here.\nA. a\nB. b\n2. It is _A_.\nA. a\nB. b\n",
     u"1. It is _____ here.\nA. a\nB. b\n⟦=⟧ B\n2. It is ___.\nA. a\nB. b\n⟦=⟧ A\n"},
    {"before numbers", u"(B) 1. One?\nA. a\nB. b\n( A ) 2. Two?\nA. a\nB. b\n",
     u"1. One?\nA. a\nB. b\n⟦=⟧ B\n2. Two?\nA. a\nB. b\n⟦=⟧ A\n"},
    {"behind", u"1. One?\nA) a B) b C) c [B]\n2. Two?\nA) a B) b C) c [C]\n",
     u"1. One?\nA) a B) b C) c\n⟦=⟧ B\n2. Two?\nA) a B) b C) c\n⟦=⟧ C\n"},
    {"bare lines", u"1. One?\nA. a\nB. b\n(B)\n\n2. Two?\nA. a\nB. b\nA\n",
     u"1. One?\nA. a\nB. b\n⟦=⟧ B\n\n2. Two?\nA. a\nB. b\n⟦=⟧ A\n"},
    {"judgements", u"1. The sun is a star. ( T )\n2. So is the moon.（×）\n",
     u"1. The sun is a star. (   )\n⟦=⟧ T\n2. So is the moon.（   ）\n⟦=⟧ ×\n"},
    {"labelled",
     u"1. One?\nA. a\nB. b (Answer: B)\n2. Two?\nA. a\nB. b\n[Key: a]\n3. The ___ flies.\n（答案：bee "
     u"(big)）\n",
     u"1. One?\nA. a\nB. b\n⟦=⟧ B\n2. Two?\nA. a\nB. b\n⟦=⟧ A\n3. The ___ flies.\n⟦=⟧ bee (big)\n"},
    {"words behind statements",
     u"1. The sun is a star. – true\n2. So is the moon. false\n3. Ice is cold:\nTrue\n",
     u"1. The sun is a star.\n⟦=⟧ true\n2. So is the moon.\n⟦=⟧ false\n3. Ice is cold:\n⟦=⟧ True\n"},
    {"words of statements", u"1. What is said is true\n2. True / False\n3. Is it so? False\n", u""},
    {"the same word always", u"1. Suns are stars.   False\n2. Moons are stars.   False\n", u""},
    {"text",
     u"1. Vitamin (C) is?\nA. a\nB. b\nC. c\n2. Two?\nA. a\nB. b\n3. Three?\nA. a\nB. b\n4. It?\nA. a\nB. "
     u"b\n",
     u""},
    {"names in most stems",
     u"1. Vitamin (C) is?\nA. a\nB. b\nC. c\n2. Who has hepatitis (B)?\nA. a\nB. b\nC. c\n"
     u"3. A grade (A) egg\nA. a\nB. b\nC. c\n",
     u""},
    {"other answers",
     u"1. It is ( A ).\nA. a\nB. b\n2. Two?\nA. a\nB. b\nAnswer: B\n3. Three?\nA. a\nB. b\nAnswer: B\n", u""},
    {"no option", u"1. It is (E).\nA. a\nB. b\n2. It is (F).\nA. a\nB. b\n", u""},
    {"two", u"1. (A) or (B)?\nA. a\nB. b\n2. (A) or (B)?\nA. a\nB. b\n", u""},
    {"a blank beside", u"1. (A) is ( ).\nA. a\nB. b\n2. (B) is ( ).\nA. a\nB. b\n", u""},
    {"labels", u"1. One? (A) a (B) b\n2. Two? (A) a (B) b\n", u""},
    {"own answers", u"1. It is (A).\nA. a\nB. b\nAnswer: B\n2. It is (B).\nA. a\nB. b\nAnswer: A\n", u""},
};

TEST(KeyInStem, LeavesTheBlankToPupils) {
  for (const StemCase& test : kStems) {
    SCOPED_TRACE(test.name);
    EXPECT_EQ(AfterSteps(u"KeyInStem", test.before), test.after.empty() ? test.before : test.after);
  }
}

}  // namespace
}  // namespace quorvantis::test

// SPDX-License-Identifier: MIT
#include "import/prepare/StepTest.h"

namespace quorvantis::test {
namespace {

struct SignCase {
  const char* name;
  std::u16string_view before;
  std::u16string_view after;  ///< empty if nothing changes
};

constexpr std::u16string_view kClean =
    u"1. One?\nA. ant\nB. bee\nC. cat\n⟦=⟧ B\n2. Two?\nA. ant\nB. bee\nC. cat\n⟦=⟧ C\n";
constexpr std::u16string_view kCleanLine =
    u"1. One?\nA. ant  B. bee  C. cat\n⟦=⟧ B\n2. Two?\nA. ant  B. bee  C. cat\n⟦=⟧ C\n";

constexpr SignCase kSigns[] = {
    {"stars before", u"1. One?\nA. ant\n*B. bee\nC. cat\n2. Two?\nA. ant\nB. bee\n* C. cat\n", kClean},
    {"stars behind labels", u"1. One?\nA. ant\nB. *bee\nC. cat\n2. Two?\nA. ant\nB. bee\nC.* cat\n", kClean},
    {"ticks at the end", u"1. One?\nA. ant\nB. bee ✓\nC. cat\n2. Two?\nA. ant\nB. bee\nC. cat ✓\n", kClean},
    {"emoji", u"1. One?\nA. ant\nB. bee ✔\uFE0F\nC. cat\n2. Two?\nA. ant\nB. bee\nC. cat✔\uFE0F\n", kClean},
    {"stars at the end", u"1. One?\nA. ant\nB. bee *\nC. cat\n2. Two?\nA. ant\nB. bee\nC. cat*\n", kClean},
    {"words", u"1. One?\nA. ant\nB. bee (correct)\nC. cat\n2. Two?\nA. ant\nB. bee\nC. cat [correct]\n",
     kClean},
    {"boxes", u"1. One?\n[ ] A. ant\n[x] B. bee\n[ ] C. cat\n2. Two?\n[ ] A. ant\n[ ] B. bee\n[x] C. cat\n",
     kClean},
    {"ballots", u"1. One?\n☐ A. ant\n☑ B. bee\n☐ C. cat\n2. Two?\n☐ A. ant\n☐ B. bee\n☑ C. cat\n", kClean},
    {"circles", u"1. One?\n○ A. ant\n● B. bee\n○ C. cat\n2. Two?\n○ A. ant\n○ B. bee\n● C. cat\n", kClean},
    {"plus and minus", u"1. One?\n-A. ant\n+B. bee\n-C. cat\n2. Two?\n-A. ant\n-B. bee\n+C. cat\n", kClean},
    {"in a line", u"1. One?\nA. ant  *B. bee  C. cat\n2. Two?\nA. ant  B. bee  *C. cat\n", kCleanLine},
    {"in a line, at the end", u"1. One?\nA. ant  B. bee*  C. cat\n2. Two?\nA. ant  B. bee  C. cat *\n",
     kCleanLine},
    {"a heading behind", u"1. One?\nA. ant\nB. bee\nC. cat ✓\n\nPart Two\n2. Two?\nA. ant ✓\nB. bee\n",
     u"1. One?\nA. ant\nB. bee\nC. cat\n\nPart Two\n⟦=⟧ C\n2. Two?\nA. ant\nB. bee\n⟦=⟧ A\n"},
    {"plus alone", u"1. One?\nA. ant\nB. bee +\n2. Two?\nA. ant +\nB. bee\n3. Three?\nA. ant +\nB. bee\n",
     u"1. One?\nA. ant\nB. bee\n⟦=⟧ B\n2. Two?\nA. ant\nB. bee\n⟦=⟧ A\n3. Three?\nA. ant\nB. bee\n⟦=⟧ A\n"},
    {"ions", u"1. One?\nA. Na +\nB. bee\n2. Two?\nA. ant\nB. bee\n3. Three?\nA. K +\nB. bee\n", u""},
    {"decoration", u"1. One?\n* A. ant\n* B. bee\n2. Two?\n* A. ant\n* B. bee\n", u""},
    {"texts", u"1. One?\nA. x = 3\nB. X rays\nC. O+\n2. Two?\nA. - 5\nB. + 5\nC. f (x\n", u""},
    {"bullets", u"1. One?\n- A. ant\n- B. bee\n2. Two?\n- A. ant\n- B. bee\n", u""},
    {"products", u"1. One?\nA. 2*3\nB. 4*5\n2. Two?\nA. 2*3 * 4\nB. 4*5\n", u""},
    {"one star in many", u"1. O?\nA. a*\nB. b\n2. T?\nA. a\nB. b\n3. T?\nA. a\nB. b\n4. F?\nA. a\nB. b\n",
     u""},
};

TEST(SignedKey, TakesTheSignsOut) {
  for (const SignCase& test : kSigns) {
    SCOPED_TRACE(test.name);
    EXPECT_EQ(AfterSteps(u"SignedKey", test.before), test.after.empty() ? test.before : test.after);
  }
}

TEST(SignedKey, SignsGoEvenWhereAnAnswerStands) {
  EXPECT_EQ(AfterSteps(u"SignedKey", u"1. One?\nA. ant ✓\nB. bee\nAnswer: B\n"),
            u"1. One?\nA. ant\nB. bee\nAnswer: B\n");
}

struct JudgementCase {
  std::u16string_view before;
  std::u16string_view after;  ///< empty if nothing changes
};

constexpr JudgementCase kJudgements[] = {
    {u"1. Sun.\nAnswer: T\n2. Moon.\nAnswer: F\n",
     u"1. Sun.\n⟦A⟧ T\n⟦B⟧ F\nAnswer: A\n2. Moon.\n⟦A⟧ T\n⟦B⟧ F\nAnswer: B\n"},
    {u"1. Sun.\nAnswer: true\n2. Moon.\nAnswer: False - the moon\nshines not.\n",
     u"1. Sun.\n⟦A⟧ true\n⟦B⟧ False\nAnswer: A\n2. Moon.\n⟦A⟧ true\n⟦B⟧ False\nAnswer: B\n"},
    {u"1、太阳。\n答案：√\n2、月亮。\n答案：×，应为…\n",
     u"1、太阳。\n⟦A⟧ √\n⟦B⟧ ×\n答案：A\n2、月亮。\n⟦A⟧ √\n⟦B⟧ ×\n答案：B\n"},
    {u"1、太阳。\n答案：错\n", u"1、太阳。\n⟦A⟧ 对\n⟦B⟧ 错\n答案：B\n"},
    {u"1. Soleil.\nAnswer: V\n2. Lune.\nAnswer: F\n",
     u"1. Soleil.\n⟦A⟧ V\n⟦B⟧ F\nAnswer: A\n2. Lune.\n⟦A⟧ V\n⟦B⟧ F\nAnswer: B\n"},
    {u"1. Солнце.\nAnswer: неверно\n2. Луна.\nAnswer: неверно\n",
     u"1. Солнце.\n⟦A⟧ Верно\n⟦B⟧ неверно\nAnswer: B\n2. Луна.\n⟦A⟧ Верно\n⟦B⟧ неверно\nAnswer: B\n"},
    // Not a judgement.
    {u"1. One?\nA. a\nB. b\nAnswer: T\n2. The temperature?\nAnswer: T\n3. Why?\nAnswer: So\n", u""},
    {u"1. True ___.\nAnswer: T\n2. And ___.\nAnswer: F\n", u""},
    {u"1. Who?\nAnswer: No one\n2. What?\nAnswer: Right angles\n", u""},
};

TEST(Judgement, GivesOptions) {
  for (const JudgementCase& test : kJudgements) {
    SCOPED_TRACE(Narrow(test.before));
    EXPECT_EQ(AfterSteps(u"Judgement", test.before), test.after.empty() ? test.before : test.after);
  }
}

TEST(Judgement, FollowsKeysFromTheEndAndFromStems) {
  EXPECT_EQ(AfterSteps(u"KeyAtEnd, Judgement", u"1. Sun.\n2. Moon.\n3. Say.\nAnswers\n1-2 TF\n3. so\n"),
            u"1. Sun.\n⟦A⟧ T\n⟦B⟧ F\n⟦=⟧ A\n2. Moon.\n⟦A⟧ T\n⟦B⟧ F\n⟦=⟧ B\n3. Say.\n⟦=⟧ so\n");
  EXPECT_EQ(AfterSteps(u"KeyInStem, Judgement", u"1. Sun. (×)\n2. Moon. ( √ )\n"),
            u"1. Sun. (   )\n⟦A⟧ √\n⟦B⟧ ×\n⟦=⟧ B\n2. Moon. (   )\n⟦A⟧ √\n⟦B⟧ ×\n⟦=⟧ A\n");
}

}  // namespace
}  // namespace quorvantis::test

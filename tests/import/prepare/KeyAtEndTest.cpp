// SPDX-License-Identifier: MIT
#include "import/prepare/KeyReports.h"
#include "import/prepare/StepTest.h"

namespace quorvantis::test {
namespace {

struct EndKeyCase {
  const char* name;
  std::u16string_view key;      ///< behind kSmallPaper
  std::u16string_view answers;  ///< of its questions, as far as they have one
};

constexpr EndKeyCase kEndKeys[] = {
    {"list", u"\nAnswers\n1. B\n2. C\n3. A\n", u"B|C|A|"},
    {"one line", u"\nAnswer key: 1. B  2. C  3. AD\n", u"B|C|AD|"},
    {"dashes", u"\nANSWERS:\n1-B, 2-C, 3-A\n", u"B|C|A|"},
    {"small letters", u"\nKey\n1) b\n2) c\n3) a\n", u"B|C|A|"},
    {"explained", u"\nAnswers\n1. B - because Darwin says so\n2. C) cat\n3. A (see page 3)\nDo not ask.\n",
     u"B|C|A|"},
    {"range", u"\n参考答案\n1-3 BCA\n", u"B|C|A|"},
    {"full-width range", u"\n答案\n1～3：ＢＣＡ\n", u"B|C|A|"},
    {"ranges", u"\n答案：1—2 BC 3—4 AD\n", u"B|C|A|D|"},
    {"spaced range", u"\nОтветы\n1-3: B, C, A\n", u"B|C|A|"},
    {"rows", u"\nLösungen\n1 2 3\nB C A\n", u"B|C|A|"},
    {"table", u"\nLösungen\nNr.\t1\t2\t3\nLösung\tB\t\tA\n", u"B|A|"},
    {"columns", u"\nRespuestas\n1\tB\n2\tC\n3\tA\n", u"B|C|A|"},
    {"bare", u"\nالإجابات\nBCA\n", u"B|C|A|"},
    {"circled", u"\n정답\n1. ②\n2. ③\n3. ①\n", u"B|C|A|"},
    {"circled numbers", u"\n解答\n①B ②C ③A\n", u"B|C|A|"},
    {"digits", u"\nKunci Jawaban\n1. 2\n2. 3\n3. 1\n", u"B|C|A|"},
    {"a missing number", u"\nAnswers\n1. B\n3. A\n", u"B|A|"},
    {"texts", u"\nAnswers\n1. B\n2. C\n3. A\n4. photosynthesis,\n", u"B|C|A|photosynthesis|"},
    {"option texts", u"\nAnswers\n1. bee\n2. cat\n3. ant\n", u"B|C|A|"},
    {"no heading", u"\n1. B\n2. C\n3. A\n", u"B|C|A|"},
    {"no heading, range", u"\n1-3 BCA\n", u"B|C|A|"},
    {"words around", u"\nAnswers for the biology test of May\n1. B\n2. C\n3. A\n", u"B|C|A|"},
    {"words before numbers", u"\n解答　問1 Ｂ　問2 Ｃ　問3 Ａ\n", u"B|C|A|"},
    {"Chinese numbers", u"\n答案：一、B 二、C 三、A\n", u"B|C|A|"},
    {"column by column", u"\nKey\n1. B   3. A\n2. C   4. cells\n", u"B|C|A|cells|"},
    {"captions", u"\nКлюч с верните отговори\nВъпрос\tОтговор\n1\tB\n2\tC\n3\tA\n", u"B|C|A|"},
    {"parts", u"\nANSWERS\nPart A: 1 B, 2 C, 3 A\nPart B: 4 brought, 5 mice\n", u"B|C|A|brought|"},
    {"an end before", u"\n------ HẾT ------\nBẢNG ĐÁP ÁN\n1 2 3\nB C A\n", u"B|C|A|"},
    {"bare behind its heading", u"\nKey: B, C, A.\n", u"B|C|A|"},
    // What is not sure stays.
    {"bare, one too many", u"\nKey: BCAD\n", u""},
    {"points", u"\nAnswers\nPart 2: 10 points\n", u""},
    {"twice", u"\nAnswers\n1. B\n2. C\n2. D\n3. A\n", u""},
    {"wrong count", u"\nAnswers\n1-3 BC\n", u""},
    {"no options", u"\nAnswers\n1. F\n2. G\n3. H\n", u""},
    {"too few without heading", u"\n1. B\n", u""},
    {"questions", u"\nAnswers to the following\n1. What is a bee?\n2. What is a cat?\n", u""},
};

TEST(KeyAtEnd, GoesToTheQuestionsByNumber) {
  for (const EndKeyCase& test : kEndKeys) {
    SCOPED_TRACE(test.name);
    const std::u16string text = std::u16string(kSmallPaper) + std::u16string(test.key);
    const std::u16string after = AfterSteps(u"KeyAtEnd", text);
    EXPECT_EQ(AnswersIn(after), test.answers);
    if (test.answers.empty()) {
      EXPECT_EQ(after, text);
    } else {
      EXPECT_EQ(after.find(test.key), after.npos);
      EXPECT_EQ(after.find(u"because"), after.npos);
    }
  }
}

TEST(KeyAtEnd, SectionsThatStartAgainStayApart) {
  const std::u16string paper =
      u"1. One?\nA. ant\nB. bee\n2. Two?\nA. ant\nB. bee\nPart B\n1. Say it.\n2. Why?\n";
  EXPECT_EQ(AnswersIn(AfterSteps(u"KeyAtEnd",
                                 paper + u"Answers\nPart A: 1. B 2. A\nPart B\n1. it\n2. so\nand so\n")),
            u"B|A|it|so|");
  // A single part may belong to either.
  EXPECT_EQ(AnswersIn(AfterSteps(u"KeyAtEnd", paper + u"Answers\n1. A\n2. B\n")), u"");
}

TEST(KeyAtEnd, OwnAnswersStayAndConflictsAreListed) {
  const std::u16string_view text =
      u"1. One?\nA. ant\nB. bee\nAnswer: A\n2. Two?\nA. ant\nB. bee\nAnswer: ____\n3. Three?\nA. ant\nB. "
      u"bee\n"
      u"Answer: b\nAnswer key\n1. B\n2. A\n3. B\n";
  EXPECT_EQ(
      AfterSteps(u"KeyAtEnd", text),
      u"1. One?\nA. ant\nB. bee\nAnswer: A\n2. Two?\nA. ant\nB. bee\nAnswer:  A\n3. Three?\nA. ant\nB. bee\n"
      u"Answer: b\n");
  const auto conflicts = KeyConflicts(PaperOf(text), KeyRules(u"KeyAtEnd"), {});
  ASSERT_EQ(conflicts.size(), 1U);
  EXPECT_EQ(conflicts[0].number, 1);
  EXPECT_EQ(conflicts[0].own + u"/" + conflicts[0].atEnd, u"A/B");
}

}  // namespace
}  // namespace quorvantis::test

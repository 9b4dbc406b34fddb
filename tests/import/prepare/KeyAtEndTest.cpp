// SPDX-License-Identifier: MIT
#include "import/prepare/KeyReports.h"
#include "import/prepare/StepTest.h"
#include "text/NumberText.h"

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
    {"points", u"\nAnswers\nPart 2: 10 points\n", u""},
    {"a sheet to mark", u"\nAnswer sheet\n1. A B C D\n2. A B C D\n3. A B C D\n", u""},
    {"a sheet to write on", u"\nAnswers\n1. ____\n2. ____\n3. ____\n4. ____\n", u""},
    {"a word for a key", u"\nAnswers\n1. B or C\n2. A/C\n3. A-C\n4. cells\n", u""},
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

struct LeftoverCase {
  const char* name;
  std::u16string_view key;      ///< behind kSmallPaper
  std::u16string_view answers;  ///< those that are sure
  std::u16string_view told;     ///< a kind and a text for each leftover
};

constexpr LeftoverCase kLeftovers[] = {
    {"bare, one too many", u"\nKey: BCAD\n", u"", u"2 Key: BCAD;"},
    {"twice", u"\nAnswers\n1. B\n2. C\n2. D\n3. A\n", u"", u"3 Answers\n1. B\n2. C\n2. D\n3. A;"},
    {"a short range", u"\nAnswers\n1-3 BC\n", u"", u"2 1-3 BC;"},
    {"a long range", u"\nAnswers\n1-2 BC 3-4 ABD\n", u"B|C|", u"2 3-4 ABD;"},
    {"a short range without heading", u"\n1-3 BC\n", u"", u"2 1-3 BC;"},
    {"a short row", u"\nKey\n1 2 3\nB C\n", u"", u"2 B C;"},
    {"no options", u"\nAnswers\n1. F\n2. G\n3. H\n", u"", u"3 Answers\n1. F\n2. G\n3. H;"},
    {"too many", u"\nAnswers\n1. B\n2. C\n3. A\n4. cells\n5. D\n6. roots\n", u"B|C|A|cells|",
     u"0 5. D\n6. roots;"},
    {"without numbers", u"\nAnswers\nPart I\n1-3 BCA\nPart II\ncells\nroots\n", u"B|C|A|",
     u"0 cells\nroots;"},
    {"explanations", u"\nAnswers\n1. B\nSee page 3.\n2. C\n3. A\n", u"B|C|A|", u"1 See page 3.;"},
    {"versions", u"\nAnswers\nVersion A: 1. B 2. C 3. A\nVersion B: 1. A 2. A 3. D\n", u"",
     u"4 Answers\nVersion A: 1. B 2. C 3. A\nVersion B: 1. A 2. A 3. D;"},
    {"versions with headings", u"\nAnswers A卷\n1-3 BCA\nAnswers B卷\n1-3 AAD\n", u"",
     u"4 Answers A卷\n1-3 BCA\nAnswers B卷\n1-3 AAD;"},
    {"versions without heading", u"\nVariant 1\n1. B 2. C 3. A\nVariant 2\n1. A 2. A 3. D\n", u"",
     u"4 Variant 1\n1. B 2. C 3. A\nVariant 2\n1. A 2. A 3. D;"},
};

TEST(KeyAtEnd, TellsWhatComesToNoQuestion) {
  for (const LeftoverCase& test : kLeftovers) {
    SCOPED_TRACE(test.name);
    const std::u16string text = std::u16string(kSmallPaper) + std::u16string(test.key);
    const std::u16string after = AfterSteps(u"KeyAtEnd", text);
    EXPECT_EQ(AnswersIn(after), test.answers);
    EXPECT_EQ(after.find(test.key.substr(2)), after.npos);
    std::u16string told;
    for (const auto& [leftover, piece] : ReportKeyAtEnd(PaperOf(text), KeyRules(u"KeyAtEnd"), {}).leftovers)
      told += FormatInteger(static_cast<int>(leftover.kind)) + u" " + piece + u";";
    EXPECT_EQ(told, test.told);
  }
}

TEST(KeyAtEnd, TakesTheVersionOfThePaper) {
  const std::u16string_view key = u"\nAnswers\nVersion A: 1. B 2. C 3. A\nVersion B: 1. A 2. A 3. D\n";
  const auto answers = [key](std::u16string_view title) {
    return AnswersIn(
        AfterSteps(u"KeyAtEnd", std::u16string(title) + std::u16string(kSmallPaper) + std::u16string(key)));
  };
  EXPECT_EQ(answers(u"Biology, version A\n"), u"B|C|A|");
  EXPECT_EQ(answers(u"Version B\n"), u"A|A|D|");
  EXPECT_EQ(answers(u"Version C\n"), u"");
}

TEST(KeyAtEnd, PartsGoByTheirTitles) {
  const std::u16string paper =
      u"Part I\n1. One?\nA. ant\nB. bee\n2. Two?\nA. ant\nB. bee\nPart II\n1. One?\nA. ant\nB. bee\n2. Two?\n"
      u"A. ant\nB. bee\n";
  const auto answers = [&paper](std::u16string_view key) {
    return AnswersIn(AfterSteps(u"KeyAtEnd", paper + u"Answers\n" + std::u16string(key)));
  };
  EXPECT_EQ(answers(u"Part I\n1. A\n2. A\nPart II\n1-2 BB\n"), u"A|A|B|B|");
  EXPECT_EQ(answers(u"Part II: 1. B 2. B\nPart I: 1. A 2. A\n"), u"A|A|B|B|");
  EXPECT_EQ(answers(u"Part II\n1. B\n2. B\n"), u"B|B|");
  EXPECT_EQ(answers(u"Part II: 1. B 2. B\nPart III: 1. A 2. A\n"), u"");
  EXPECT_EQ(answers(u"1. B 2. B\nPart I: 1. A 2. A\n"), u"");
}

TEST(KeyAtEnd, RepeatsOptionsWithoutHeading) {
  const std::u16string paper = u"1. One?\nA) ant\nB) bee\nC) cat\n2. Two?\nA) ant\nB) bee\nC) cat\n";
  EXPECT_EQ(AfterSteps(u"KeyAtEnd", paper + u"1. B) bee\n2. C) cat\n"),
            u"1. One?\nA) ant\nB) bee\nC) cat\n⟦=⟧ B\n2. Two?\nA) ant\nB) bee\nC) cat\n⟦=⟧ C\n");
  EXPECT_EQ(AnswersIn(AfterSteps(u"KeyAtEnd", paper + u"1. B) bee\n2. C) bee\n")), u"");
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
  const auto conflicts = ReportKeyAtEnd(PaperOf(text), KeyRules(u"KeyAtEnd"), {}).conflicts;
  ASSERT_EQ(conflicts.size(), 1U);
  EXPECT_EQ(conflicts[0].number, 1);
  EXPECT_EQ(conflicts[0].own + u"/" + conflicts[0].atEnd, u"A/B");
}

}  // namespace
}  // namespace quorvantis::test

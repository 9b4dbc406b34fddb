// SPDX-License-Identifier: MIT
#include "import/prepare/KeyReports.h"
#include "import/prepare/StepTest.h"

namespace quorvantis::test {
namespace {

struct LetterCase {
  std::u16string_view answer;
  std::u16string_view letters;  ///< "?" for none
};

constexpr std::u16string_view kLatinQuestion =
    u"1. What?\nA. be\nB. Rome\nC. Paris in France\nD. a dog\nAnswer: ";

constexpr LetterCase kLatin[] = {
    {u"B", u"B"},
    {u"b", u"B"},
    {u"b)", u"B"},
    {u"(B)", u"B"},
    {u"Ｂ", u"B"},
    {u"ｂ．", u"B"},
    {u"B.", u"B"},
    {u"2", u"B"},
    {u"2, 4", u"BD"},
    {u"②", u"B"},
    {u"BD", u"BD"},
    {u"DB", u"BD"},
    {u"bd", u"BD"},
    {u"B, D", u"BD"},
    {u"B and D", u"BD"},
    {u"b и d", u"BD"},
    {u"B、D", u"BD"},
    {u"B D", u"BD"},
    {u"A~C", u"ABC"},
    {u"A至D", u"ABCD"},
    {u"A-B", u"AB"},
    {u"A-C", u""},
    {u"B or C", u""},
    {u"A/C", u""},
    {u"not B", u""},
    {u"All", u""},
    {u"Option B", u"B"},
    {u"The correct answer is B.", u"B"},
    {u"答案：B", u"B"},
    {u"故选B", u"B"},
    {u"B. Because Darwin and Cuvier say so", u"B"},
    {u"B (see page 3)", u"B"},
    {u"B - A city in Europe", u"B"},
    {u"B because of A", u"B"},
    {u"b) Rome", u"B"},
    {u"B Rome", u"B"},
    {u"Rome", u"B"},
    {u"ROME.", u"B"},
    {u"a dog", u"D"},
    {u"A dog", u"D"},
    {u"be", u"A"},
    {u"Paris", u"C"},
    {u"the second", u"B"},
    {u"second", u"B"},
    {u"B\n\nPart Two: Choose A or D", u"B"},
    {u"B\nDarwin", u"B"},
    {u"B,C", u"BC"},
    {u"both A and C", u"AC"},
    {u"B,D because", u"BD"},
    {u"B，因为A不对", u"B"},
    {u"A) be; C) Paris in France", u"AC"},
    {u"B) Rome, since A) and D) are wrong", u"B"},
    {u"B；解析：略", u"B"},
    {u"F", u"F"},
    {u"A, F", u""},
    {u"I do not know", u"I do not know"},
    {u"Dear me", u""},
    {u"c) Rome", u"c) Rome"},
    {u"C) Rome", u""},
    {u"7", u"7"},
    {u"BAD IDEA", u""},
    {u"A cat", u""},
    {u"Berlin", u""},
};

TEST(KeyLetters, AreCapitalAndSure) {
  for (const LetterCase& test : kLatin) {
    SCOPED_TRACE(Narrow(test.answer));
    const std::u16string text = std::u16string(kLatinQuestion) + std::u16string(test.answer) + u"\n";
    const std::u16string after = AfterSteps(u"KeyLetters", text);
    EXPECT_EQ(after, std::u16string(kLatinQuestion) + std::u16string(test.letters) + u"\n");
    const bool isUnclear =
        test.letters.empty() || test.letters.find_first_not_of(u"ABCD") != test.letters.npos;
    EXPECT_EQ(KeysNotOptions(PaperOf(text), KeyRules(u"KeyLetters"), {}).size(), isUnclear ? 1U : 0U);
  }
}

TEST(KeyLetters, OptionEIsNoWordForAnd) {
  const std::u16string question = u"1. What?\nA. v\nB. w\nC. x\nD. y\nE. z\nAnswer: ";
  for (const auto& [answer, letters] :
       {std::pair{u"A, E", u"AE"}, {u"B+E", u"BE"}, {u"A, C, D, E", u"ACDE"}, {u"A e C", u"AC"}})
    EXPECT_EQ(AfterSteps(u"KeyLetters", question + answer + u"\n"), question + letters + u"\n");
}

struct ScriptCase {
  std::u16string_view labels;  ///< of three options
  std::u16string_view answer;
  std::u16string_view letters;
};

constexpr ScriptCase kScripts[] = {
    {u"АБВ", u"Б", u"B"},     {u"абв", u"б)", u"B"},    {u"абв", u"В", u"C"},     {u"АБВ", u"C", u"C"},
    {u"أبج", u"ب", u"B"},     {u"אבג", u"ג", u"C"},     {u"กขค", u"ข", u"B"},     {u"①②③", u"3", u"C"},
    {u"ＡＢＣ", u"C", u"C"},  {u"ΑΒΓ", u"γ", u"C"},     {u"가나다", u"나", u"B"}, {u"甲乙丙", u"乙", u"B"},
    {u"アイウ", u"ウ", u"C"}, {u"abc", u"A, C", u"AC"}, {u"अआइ", u"अ", u"A"},     {u"ابج", u"(الف)", u"A"},
};

TEST(KeyLetters, OfEveryAlphabetBecomeLatin) {
  for (const ScriptCase& test : kScripts) {
    std::u16string text = u"1. What?\n";
    for (const char16_t label : test.labels) text += std::u16string(1, label) + u") x" + label + u"y\n";
    EXPECT_EQ(AfterSteps(u"KeyLetters", text + u"Answer: " + std::u16string(test.answer) + u"\n"),
              text + u"Answer: " + std::u16string(test.letters) + u"\n");
  }
}

TEST(KeyLetters, LatinOnesForCyrillicOptionsNeedAnotherToBeSure) {
  const std::u16string question = u". Что?\nА. раз\nБ. два\nВ. три\nГ. четыре\nAnswer: ";
  EXPECT_EQ(AfterSteps(u"KeyLetters", u"1" + question + u"B\n"), u"1" + question + u"\n");
  EXPECT_EQ(AfterSteps(u"KeyLetters", u"1" + question + u"B\n2" + question + u"D\n"),
            u"1" + question + u"B\n2" + question + u"D\n");
  EXPECT_EQ(AfterSteps(u"KeyLetters", u"1" + question + u"B\n2" + question + u"Г\n"),
            u"1" + question + u"C\n2" + question + u"D\n");
}

TEST(AnswerSlips, BecomeTheUsualLabel) {
  constexpr std::u16string_view kUsual = u"1. One?\nA. ant\nB. bee\nAnswer: B\n2. Two?\nA. ant\nB. bee\n";
  const auto mended = [kUsual](std::u16string_view line) {
    return AfterSteps(u"AnswerSlips", std::u16string(kUsual) + std::u16string(line) + u"\n")
        .substr(kUsual.size());
  };
  for (const std::u16string_view line : {u"Ansewr: A", u"Answer; A", u"Answer : A", u"ANSWR:A", u"answer A"})
    EXPECT_EQ(mended(line), u"Answer: A\n");
  for (const std::u16string_view line : {u"Dancer: A", u"Ansewr: cow", u"Answers are A", u"A: A"})
    EXPECT_EQ(mended(line), std::u16string(line) + u"\n");
}

}  // namespace
}  // namespace quorvantis::test

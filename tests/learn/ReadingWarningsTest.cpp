// SPDX-License-Identifier: MIT
#include "learn/warnings/ReadingWarnings.h"
#include "text/NumberText.h"
#include "text/Utf.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quorvantis::test {
namespace {

const CancelHook kNobodyEnds;

ImportSettings PlainRules() {
  ImportSettings rules;
  rules.m_strPreQuestion = u"\\s*^(?:Question )?(?:[0-9]+|[IVX]+)[.]\\s*";
  rules.m_strPreAnswer = u"\\s*^(?:Answer|Also):[ ]*";
  rules.m_strPattern =
      u"(?<Q1>.+?)\\s*^A[.](?<A>[^\\n]*)(?:\\s*^B[.](?<B>[^\\n]*))?(?:\\s*^C[.](?<C>[^\\n]*))?"
      u"(?:\\s*^D[.](?<D>[^\\n]*))?(?:\\s*^E[.](?<E>.*))?\\s*\\z|(?<Q2>.*\\S)";
  return rules;
}

/// The warnings as "kind question number text", with the names of the texts.
std::string Warned(std::u16string_view text) {
  Paper paper = PaperOf(text);
  paper.hasPictures = paper.hasFormulas = true;
  const ImportSettings rules = PlainRules();
  std::string all;
  for (const ReadingWarning& warning : WarningsOf(paper, rules, ReadByRules(paper, rules, kNobodyEnds))) {
    all += (all.empty() ? "" : "; ") + std::to_string(static_cast<int>(warning.kind)) + " " +
           std::to_string(warning.question) + " " + std::to_string(warning.number);
    if (!warning.text.empty()) all += " " + Utf16ToUtf8(warning.text);
  }
  return all;
}

std::string Line(ReadingWarning::Kind kind, int question, int number, const std::string& text = {}) {
  return std::to_string(static_cast<int>(kind)) + " " + std::to_string(question) + " " +
         std::to_string(number) + (text.empty() ? "" : " " + text);
}

TEST(ReadingWarnings, TellWhatToLookAt) {
  using Kind = ReadingWarning::Kind;
  const std::u16string good = u"1. Why?\nA. x\nB. y\nAnswer: B\n";
  const std::u16string second = u"2. How?\nA. x\nB. y\nAnswer: A, B\n";
  const std::u16string third = u"3. Who?\nA. x\nB. y\nAnswer: A\n";
  const struct {
    std::u16string text;
    std::string warnings;
  } kCases[] = {
      {good + second + third, ""},
      {good + u"2. How?\nA. x\nB. y\nAnswer:\n" + third, Line(Kind::NoKey, 1, 0)},
      {u"1. Why?\nA. x\nB. y\nAnswer:\n2. How?\nA. x\nB. y\nAnswer:\n", ""},
      {good + second + u"3. Who?\nA. x\nB. y\nC. z\nAnswer: C\n", Line(Kind::OptionCount, 2, 3)},
      {good + second + u"3. Who?\nA. x\nAnswer: A\n", Line(Kind::OneOption, 2, 1)},
      {good + second + u"3. Who?\nA.\nB. y\nAnswer: B\n",
       Line(Kind::EmptyOption, 2, 0) + "; " + Line(Kind::OneOption, 2, 1)},
      {good + second + u"3. Who?\nA. a\nB. b\nC. c\nD. d\nE. e\nF. f\nAnswer: B\n",
       Line(Kind::TooManyOptions, 2, 6)},
      {good + u"4. How?\nA. x\nB. y\nAnswer: A\n", Line(Kind::NumberMissing, 1, 2)},
      {good + u"IV. How?\nA. x\nB. y\nAnswer: A\n", Line(Kind::NumberMissing, 1, 2)},
      {good + u"Question 1. How?\nA. x\nB. y\nAnswer: A\n", Line(Kind::NumberAgain, 1, 1)},
      {good + second + u"1. How?\nA. x\nB. y\nAnswer: A\n", ""},
      {good + u"2. How?\nA. x\nB. y\nAnswer: D\n", Line(Kind::KeyNotAnOption, 1, 0, "D")},
      {good + u"2. How?\nA. x\nB. y\nAnswer: c\n", Line(Kind::KeyNotAnOption, 1, 0, "c")},
      {good + u"2. How?\nA. x\nB. y\nAnswer: B, as in B. y\n", Line(Kind::KeyUnclear, 1, 0, "B, as in B. y")},
      {good + u"2. How ( A )?\nA. x\nB. y\nAnswer: A\n", Line(Kind::KeyVisible, 1, 0, "( A )")},
      {good + u"2. How (C)?\nA. x\nB. y\nAnswer: A\n", ""},
      {good + u"2. How?\nA. x\nB. y \u2713\nAnswer: B\n", Line(Kind::KeyVisible, 1, 0, "y \xE2\x9C\x93")},
      {good + u"2. How?\n\u7B54\u6848\uFF1AB\nA. x\nB. y\nAnswer: B\n",
       Line(Kind::KeyVisible, 1, 0,
            "\xE7\xAD\x94\xE6\xA1\x88\xEF\xBC\x9A"
            "B")},
      {good + u"2. How?\nA. " + std::u16string(257, u'x') + u"\nB. y\nAnswer: A\n",
       Line(Kind::TooLongText, 1, 0)},
      {good + u"2. How?\nA. x\nB. y\nAnswer: A\nAlso: B\n", Line(Kind::TwoAnswers, 1, 0, "A / B")},
      {good + u"2. How?\nA. x\nB. y\nAnswer: A\nAlso: A.\n", ""},
      {good + u"2. How?\nA. x 7.bmp\nB. y ##\nAnswer: A\n",
       Line(Kind::AnswerPictures, 1, 1) + "; " + Line(Kind::Formulas, 1, 1)},
      {good + u"2. How 1.bmp or 2.bmp ?\nA. x\nB. y\nAnswer: A\n", Line(Kind::MorePictures, 1, 2)},
      {good + u"2. Open end\n3. Who?\nA. x\nB. y\nAnswer: A\n", Line(Kind::NotRead, -1, 0, "Open end")},
  };
  for (const auto& row : kCases) EXPECT_EQ(Warned(row.text), row.warnings) << Utf16ToUtf8(row.text);
}

/// How many warnings of a visible key there are.
std::ptrdiff_t VisibleKeysIn(std::u16string_view text) {
  const Paper paper = PaperOf(text);
  ImportSettings rules = PlainRules();
  rules.m_strPreAnswer = u"\\s*^(?:Answer:|\u27E6=\u27E7)[ ]*";
  rules.prepare = {u"OpenAnswers"};
  const auto warnings = WarningsOf(paper, rules, ReadByRules(paper, rules, kNobodyEnds));
  return std::ranges::count(warnings, ReadingWarning::Kind::KeyVisible, &ReadingWarning::kind);
}

TEST(ReadingWarnings, TellOfEveryKeyThatPupilsSee) {
  const struct {
    std::u16string_view text;
    std::ptrdiff_t visible;
  } kCases[] = {
      {u"1. Why?\nA. x\nB. y\n2. How?\nA. x\nB. y\nC. z\nSvaren: 1b – 2c – 3a\n", 1},
      {u"1. Why?\nA. x\nB. y (1B, 2C, 3A)\n", 1},
      {u"1. Why?\nA. x\nB. y\nPauta – BCA\n", 1},
      {u"1. Why?\nA. x\nB. y\nGABARITO B C A\n", 1},
      {u"1. Why?\nA. x\nB. y   Ответ: Б\n", 1},
      {u"1. Why?\nA. x\nB. y [Lösung: B]\n", 1},
      {u"1. Suns are stars.   true\n2. So are moons.   false\n3. Name one.\n", 2},
      {u"1. 太阳是恒星。　　对\n2. 月亮是恒星。　　错\n", 2},
      {u"1. Suns are stars. √\n2. Name one.\n", 1},
      {u"1. (T) Suns are stars.\n2. (F) Moons are stars.\n", 2},
      {u"1. Why? B\nA. x\nB. y\n2. How?   A\nA. x\nB. y\n", 2},
      {u"1. Why?\n(B)\nA. x\nB. y\n2. How?\nA\nA. x\nB. y\n", 2},
      // What only looks like one.
      {u"1. Iron is 1s2 2s2 2p6 3s2.\n2. White plays 1. e4 e5 2. Nf3 Nc6 3. Bb5 a6.\n3. 1a. Edition, 2b. "
       u"Edition\n",
       0},
      {u"1. Match.\nA. 1-b, 2-a, 3-c\nB. 1-a, 2-b, 3-c\nC. 1-c, 2-b, 3-a\n", 0},
      {u"1. What is said is true\n2. Suns are stars. True / False\n3. Moons are stars.   true   false\n", 0},
      {u"1. C major has no sharps.\n2. Solution A is heated.\n3. Answer the letter of A.\n", 0},
      {u"1. The force (F)\n2. Vitamin C\nA. x\nB. y\nC. z\n3. Hepatitis B\nA. x\nB. y\nC. z\n", 0},
      {u"1. Explain.\nAnswer sheet:\n_______\n_______\n2. Count 1 a 2 b.\n", 0},
  };
  for (const auto& row : kCases) EXPECT_EQ(VisibleKeysIn(row.text), row.visible) << Utf16ToUtf8(row.text);
}

/// Long papers must not take long, whatever they are full of.
TEST(ReadingWarnings, AreFoundQuickly) {
  std::u16string text;
  for (int i = 1; i <= 5'000; ++i) text += FormatInteger(i) + u". Why (((A ( B [ ?\nA. x\nB. y\nAnswer: B\n";
  const auto begin = std::chrono::steady_clock::now();
  const Paper paper = PaperOf(text);
  const PaperReading reading = ReadByRules(paper, PlainRules(), kNobodyEnds);
  const auto middle = std::chrono::steady_clock::now();
  const auto warnings = WarningsOf(paper, PlainRules(), reading);
  EXPECT_EQ(warnings.front().kind, ReadingWarning::Kind::TooManyQuestions);
  EXPECT_LT(std::chrono::steady_clock::now() - middle, 5 * (middle - begin) + std::chrono::seconds(1));
}

}  // namespace
}  // namespace quorvantis::test

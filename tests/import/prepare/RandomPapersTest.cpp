// SPDX-License-Identifier: MIT
// What holds for any text, however odd.
#include "import/labels/LineText.h"
#include "import/prepare/StepTable.h"
#include "platform/WordContent.h"

#include <chrono>
#include <random>

namespace quorvantis::test {
namespace {

class RandomPapers {
 public:
  explicit RandomPapers(unsigned seed) : random_(seed) {}

  /// Pieces of papers in any order, some of them in tables.
  Paper Next() {
    WordContent document;
    for (std::size_t i = Below(40); i > 0; --i) {
      if (Below(10) == 0) {
        AddTable(document);
      } else {
        document.runningText.characters += Piece();
      }
    }
    Paper paper = PaperOf(document);
    for (auto& kinds : paper.source.emphasis) kinds = Below(6) == 0 ? emphasis::kUnderlined : 0;
    return paper;
  }

 private:
  std::size_t Below(std::size_t limit) { return random_() % limit; }

  std::u16string_view Piece() {
    static constexpr char16_t kSurrogate[] = {0xD800};
    constexpr std::u16string_view kLoneSurrogate(kSurrogate, 1);
    constexpr std::u16string_view kPieces[] = {u"\r",
                                               u"\r",
                                               u"\r\r",
                                               u"\r\n",
                                               u"\v",
                                               u"\f",
                                               u"1. ",
                                               u"2. ",
                                               u"3) ",
                                               u"A. ",
                                               u"\rA. x\rB. y\rC, z\r",
                                               u"b) ",
                                               u"\u0430) ",
                                               u"в) ",
                                               u"(  )",
                                               u"......",
                                               u"____",
                                               u"_",
                                               u" _ _ _",
                                               u"      ",
                                               u"□ ",
                                               u"\u200F",
                                               u"\u00AD(B\u00A0)\u2003",
                                               u"\u2028",
                                               u"Who?",
                                               u"Answer: ",
                                               u"⟦=⟧ B",
                                               u"⟦2⟧ ",
                                               u"⟦A⟧ ",
                                               u"Page 2",
                                               u"\r- 3 -\r",
                                               u"----",
                                               u"Marks: ",
                                               u"QuestionID 7\r",
                                               u"- he\r",
                                               u"* ",
                                               u"(Source: x)",
                                               u"\rAnswer key\r",
                                               u"word ",
                                               u"书",
                                               kLoneSurrogate,
                                               std::u16string_view(u"\0", 1)};
    return kPieces[Below(std::size(kPieces))];
  }

  void AddTable(WordContent& document) {
    WordTable table;
    table.position = document.runningText.characters.size();
    for (std::size_t row = Below(4); row > 0; --row) {
      auto& cells = table.rows.emplace_back();
      for (std::size_t cell = Below(4); cell > 0; --cell) {
        WordText text;
        for (std::size_t i = Below(3); i > 0; --i) text.characters += Piece();
        text.characters += u"\r\u0007";
        cells.push_back(text);
      }
    }
    document.tables.push_back(table);
  }

  std::mt19937 random_;
};

/// What each step may take out of a text, as characters; letters and digits stay in any case.
bool MayGo(std::u16string_view step, char16_t unit) {
  if (step == u"BlankForms")
    return std::u16string_view(u"_.…□()（）[]").find(unit) != std::u16string_view::npos || IsBlank(unit);
  if (step == u"TableOptions" || step == u"OpenAnswers") return IsBlank(unit) || IsLineEnd(unit);
  if (step == u"PlainOptions")
    return IsBlank(unit) || std::u16string_view(u"-*□()").find(unit) != std::u16string_view::npos;
  if (step == u"PlainSpaces") return IsBlank(unit) || unit == u'\u00AD';
  return step == u"Noise";
}

void CheckNothingIsLost(std::u16string_view step, const PaperText& before, const PaperText& after) {
  std::vector<bool> isKept(before.Size(), false);
  std::uint32_t last = 0;
  for (const std::uint32_t origin : after.origins) {
    if (origin == kInserted) continue;
    ASSERT_FALSE(isKept[origin]) << "twice";
    isKept[origin] = true;
    // Only tables and columns may be read in another order.
    ASSERT_TRUE(step == u"TableOptions" || step == u"OptionColumns" || origin >= last);
    last = origin;
  }
  for (std::size_t i = 0; i < before.Size(); ++i) {
    ASSERT_TRUE(isKept[i] || MayGo(step, before.characters[i])) << "at " << i;
  }
}

TEST(RandomPapers, LoseNothingAndSettle) {
  RandomPapers papers(17);
  constexpr std::u16string_view kSteps[] = {
      u"SoftBreaks",      u"PlainSpaces",      u"TableOptions", u"MixedLetters", u"OptionColumns",
      u"NumberedOptions", u"ForgottenNumbers", u"ClozeStems",   u"Noise",        u"Unnumbered",
      u"PlainOptions",    u"BlankForms",       u"OpenAnswers"};
  for (int i = 0; i < 150; ++i) {
    const Paper paper = papers.Next();
    ImportSettings rules = PlainRules();
    if (i % 3 == 0) rules.m_strPreQuestion.clear();
    for (const std::u16string_view step : kSteps) {
      SCOPED_TRACE(::testing::Message() << "paper " << i << " " << std::string(step.begin(), step.end()));
      const PaperText once = AfterStep(step, paper, rules, paper.source);
      CheckTracks(paper, once);
      CheckNothingIsLost(step, paper.source, once);
      if (HasFatalFailure()) return;
      // Where one thing has gone, another may show: noise at the end of what is left.
      if (step == u"Noise" || step == u"TableOptions" || step == u"PlainOptions") continue;
      ASSERT_EQ(AfterStep(step, paper, rules, once).characters, once.characters);
    }
  }
}

TEST(RandomPapers, AreTheSameWithAMemory) {
  RandomPapers papers(23);
  std::mt19937 random(5);
  for (int i = 0; i < 60; ++i) {
    const Paper paper = papers.Next();
    PreparationMemory memory;
    for (int attempt = 0; attempt < 12; ++attempt) {
      ImportSettings rules = PlainRules();
      if (random() % 3 == 0) rules.m_strPreAnswer.clear();
      for (const PreparationStep& step : PreparationSteps()) {
        if (random() % 3 == 0) rules.prepare.emplace_back(step.name);
      }
      const PaperText remembered = PreparePaper(paper, rules, {}, &memory).text;
      const PaperText anew = PreparePaper(paper, rules, {}).text;
      ASSERT_EQ(remembered.characters, anew.characters) << "paper " << i;
      ASSERT_EQ(remembered.origins, anew.origins) << "paper " << i;
    }
  }
}

/// Texts that could make a step look at the same place again and again.
TEST(RandomPapers, TakeNoTime) {
  constexpr std::u16string_view kPieces[] = {u"(",
                                             u"( ",
                                             u". ",
                                             u"_ ",
                                             u"□",
                                             u"A. ",
                                             u"a)",
                                             u"1. A. ",
                                             u"\r1. a ",
                                             u"\r- ",
                                             u"\rA ",
                                             u"      ",
                                             u"\r1-6 ABCA",
                                             u"\rAnswers\rPart 1: 1. B ",
                                             u"Version A: 1 B "};
  constexpr std::u16string_view kSteps[] = {
      u"PlainSpaces", u"MixedLetters", u"OptionColumns", u"NumberedOptions", u"ForgottenNumbers",
      u"ClozeStems",  u"Noise",        u"Unnumbered",    u"PlainOptions",    u"BlankForms",
      u"OpenAnswers", u"KeyAtEnd",     u"KeyInStem"};
  for (const std::u16string_view piece : kPieces) {
    std::u16string text = u"1. ";
    while (text.size() < 100'000) text += piece;
    const Paper paper = PaperOf(text);
    for (const std::u16string_view step : kSteps) {
      const auto begin = std::chrono::steady_clock::now();
      AfterStep(step, paper, PlainRules(), paper.source);
      const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
      EXPECT_LT(time.count(), 10) << std::string(step.begin(), step.end()) << ::testing::PrintToString(piece);
    }
  }
}

}  // namespace
}  // namespace quorvantis::test

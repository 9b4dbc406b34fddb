// SPDX-License-Identifier: MIT
#include "versions/VersionsTest.h"
#include "versions/verify/CsvText.h"
#include "versions/verify/PaperComparison.h"
#include "versions/verify/VisibleText.h"

namespace quorvantis::test {
namespace {

using Texts = std::vector<std::u16string>;

TEST(VisibleText, IsWhatABrowserShows) {
  const std::pair<const char16_t*, Texts> kRows[] = {
      {u"plain", {u"plain"}},
      {u"<b>bold</b> and <img src=\"a>b\">", {u"bold", u" and "}},
      {u"1 < 2 && 3 > 2", {u"1 < 2 && 3 > 2"}},
      {u"a &lt; b&nbsp;&#65;&#x42; &unknown;", {u"a < b\u00A0AB &unknown;"}},
      {u"&eacute;&#150;&#65&lt2 &pix;", {u"\u00E9\u2013A<2 &pix;"}},
      {u"x<!-- no --><script>no</script><style>no</style>y<", {u"x", u"y<"}},
      {u"open <b", {u"open "}},
      {u"I </3> you<iframe>no</iframe><textarea>&lt;b></textarea>", {u"I ", u" you", u"<b>"}},
      {u"  <br> ", {}},
  };
  for (const auto& [markup, pieces] : kRows) EXPECT_EQ(VisiblePieces(markup), pieces);
}

TEST(CsvText, IsReadCellByCell) {
  EXPECT_EQ(ReadCsv("\xEF\xBB\xBF"
                    "a,\"b\"\"\r\n,\"\r\n,c,\r\n"),
            (std::vector<CsvRow>{{u"a", u"b\"\r\n,"}, {u"", u"c", u""}}));
  EXPECT_EQ(ReadCsv("a,b"), std::nullopt);
  EXPECT_EQ(ReadCsv("\xEF\xBB\xBF\"a"), std::nullopt);
}

class PrintedSheets : public VersionsTest {
 protected:
  PrintedSheets() {
    AddChoice(u"Which <i>one</i>?", {u"red", u"", u"green"}, u"c");
    Add(QuestionKind::FillIn, u"ما هو 17 + 4؟").answerText = u"21";
  }
  std::size_t Faults(Sheet sheet, Texts pages) {
    for (std::u16string& page : pages) page += u"\nVersion A 1a2b3c4d";
    const PaperDifferences found =
        ComparePaper(exam, sheet, {u"A", u"1a2b3c4d"}, {std::move(pages)}, world.strings);
    return found.faults.size() + found.notCompared.size();
  }
};

TEST_F(PrintedSheets, MustSayWhatTheVersionSays) {
  EXPECT_EQ(Faults(Sheet::Paper, {u"1.\nWhich one?\nA red\nC\ngreen\n.2\n؟17 + 4 هو ما\n"}), 0U);
  EXPECT_EQ(Faults(Sheet::Paper, {u"1. Which one?\nA red", u"C green 2. ما هو 17 + 4؟"}), 0U);
  EXPECT_EQ(Faults(Sheet::Paper, {u"1. Which one?\nA green\nC red\n2. ما هو 17 + 4؟"}), 1U);
  EXPECT_EQ(Faults(Sheet::Paper, {u"1. Which one?\nA red\nB green\n2. ما هو 17 + 4؟"}), 1U);
  EXPECT_EQ(Faults(Sheet::Paper, {u"1. Which one?\nA red\nC green\n2. ما هو 18 + 4؟"}), 1U);
  exam.Question(2).text = u"أيّ لونٍ هو 17؟";
  EXPECT_EQ(Faults(Sheet::Paper, {u"1. Which one?\nA red\nC green\n.2\n؟17 هو ٍنلو ّيأ"}), 0U) << "in pieces";
  EXPECT_EQ(Faults(Sheet::Paper, {u"1. Which one?\nA red\nC green\n.2\n؟17 هو ٍبكت ّيأ"}), 1U);
  exam.Question(2).text = u"ما هو 17 + 4؟";
  EXPECT_EQ(Faults(Sheet::Solutions, {u"1. Which one? A red \u2713 C green 2. ما هو 17 + 4؟ Answer 21"}), 0U);
  EXPECT_EQ(Faults(Sheet::Solutions, {u"1. Which one? A red C\u2713 green 2. ما هو 17 + 4؟ Answer 21"}), 0U);
  EXPECT_EQ(Faults(Sheet::Solutions, {u"1. Which one? \u2713 A red C green 2. ما هو 17 + 4؟ Answer 21"}), 1U);
  EXPECT_EQ(Faults(Sheet::Solutions, {u"1. Which one? \u2713A red \u2713C green 2. ما هو 17 + 4؟ 21"}), 1U);
  EXPECT_EQ(Faults(Sheet::Key, {u"No. Answer\n1 C\n2 21"}), 0U);
  EXPECT_EQ(Faults(Sheet::Key, {u"No. Answer\n1 A\n2 22"}), 2U);
  EXPECT_EQ(ComparePaper(exam, Sheet::Answers, {u"A", u"1a2b3c4d"}, {{u"A 1a2b3c4d", u"A"}}, world.strings)
                .faults.size(),
            1U);
  EXPECT_EQ(
      ComparePaper(exam, Sheet::Answers, {u"A", u"1a2b3c4d"}, {{u"A 1a2b3c4d", u"2 / 2\n"}}, world.strings)
          .faults.size(),
      0U)
      << "a blank page";
  EXPECT_EQ(ComparePaper(exam, Sheet::Paper, {u"A", u"1"}, {{}, "no"}, world.strings).faults.size(), 1U);
}

}  // namespace
}  // namespace quorvantis::test

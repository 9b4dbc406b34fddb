// SPDX-License-Identifier: MIT
#include "search/HitLine.h"
#include "search/SearchTest.h"

#include <random>

namespace quorvantis::test {
namespace {

struct FindRow {
  const char* what;
  SearchQuery query;
  std::u16string bracketed;  ///< the text, with brackets around the expected hits
};

constexpr bool kCase = true;
constexpr bool kWord = true;

const FindRow kFindRows[] = {
    {"any case", {u"colour"}, u"[Colour], [colour]s and [COLOUR]"},
    {"its case", {u"Colour", false, kCase}, u"[Colour], colours and COLOUR"},
    {"a folded query", {u"STRASSE"}, u"[Strasse], not Straße"},
    {"Greek and Cyrillic", {u"ΣΟΦΊΑ"}, u"[σοφία], [ςοφία]; москва"},
    {"Cyrillic pattern", {u"МОСКВ[аы]", kPattern}, u"[москва], [Москвы]"},
    {"no overlap", {u"aa"}, u"[aa][aa]a"},
    {"brackets are text", {u"a.c"}, u"abc [a.c]"},
    {"a word", {u"art", false, false, kWord}, u"[art], start, party, arté, art_, [Art]"},
    {"a sign at the end of a word", {u"C++", false, false, kWord}, u"[C++] [c++]: xC++"},
    {"Arabic words", {u"كتاب", false, false, kWord}, u"[كتاب]، الكتاب، [كتاب]"},
    {"Chinese has no borders", {u"水", false, false, kWord}, u"喝[水]是DNA[水]x"},
    {"a Latin word in Chinese", {u"DNA", false, false, kWord}, u"是[DNA]的 mDNA"},
    {"a word by a pattern", {u"colou?r", kPattern, false, kWord}, u"[color] [Colour] colors"},
    {"a line end is one", {u"a\nb"}, u"[a\r\nb] [a\nb] [a\rb] ab"},
    {"a dot takes no half line end", {u"a.*", kPattern}, u"[abc]\r\nx[a]\r\n"},
    {"lines", {u"^b$", kPattern}, u"a\r\n[b]\r\nb \r\n[b]"},
    {"empty matches are none", {u"x*", kPattern}, u"ab[xx]c"},
    {"no half of a pair", {u".", kPattern}, u"[a]\U0001F600[b]"},
    {"no half of a pair as text", {std::u16string(1, u'\xDE00')}, u"\U0001F600"},
    {"nothing", {u""}, u"abc"},
};

std::u16string WithoutBrackets(std::u16string text) {
  std::erase_if(text, [](char16_t unit) { return unit == u'[' || unit == u']'; });
  return text;
}

TEST_F(SearchTest, FindsInAText) {
  for (const FindRow& row : kFindRows) {
    SCOPED_TRACE(row.what);
    exam.Question(1).text = WithoutBrackets(row.bracketed);
    const SearchOutcome outcome = FindAll(exam, TextSearch(row.query));
    EXPECT_EQ(outcome.end, SearchEnd::Done);
    EXPECT_EQ(Bracketed(exam.Question(1).text, outcome.hits), row.bracketed);
  }
}

TEST_F(SearchTest, FindsInEveryPlaceThatIsShownInOrder) {
  exam.title = exam.examAttachmentNames[1] = u"x";
  for (ExamQuestion* question : {&exam.Question(1), &exam.Question(2), &exam.Question(500)}) {
    question->text = question->answerText = question->essayAnswer = question->attachmentNames[0] = u"x";
    question->options.fill(u"x");
  }
  exam.Question(2).kind = QuestionKind::FillIn;
  exam.Question(2).answerText = u"x<@>y<@>x";
  exam.Question(500).kind = QuestionKind::Essay;
  using enum ExamFieldName;
  const std::vector<SearchHit> expected = {
      {{0, Title}, 0, 1},           {{0, AttachmentName, 1}, 0, 1}, {{1, QuestionText}, 0, 1},
      {{1, Options, 0}, 0, 1},      {{1, Options, 1}, 0, 1},        {{1, Options, 2}, 0, 1},
      {{1, Options, 3}, 0, 1},      {{1, Options, 4}, 0, 1},        {{1, AttachmentName}, 0, 1},
      {{2, QuestionText}, 0, 1},    {{2, FillInAnswer}, 0, 1},      {{2, FillInAnswer}, 8, 1},
      {{2, AttachmentName}, 0, 1},  {{500, QuestionText}, 0, 1},    {{500, EssayAnswer}, 0, 1},
      {{500, AttachmentName}, 0, 1}};
  EXPECT_EQ(FindAll(exam, TextSearch({u"X"})).hits, expected);
  EXPECT_TRUE(FindAll(exam, TextSearch({u"<@>"})).hits.empty());
  EXPECT_EQ(FindAll(exam, TextSearch({u"^x$", kPattern})).hits, expected);
}

/// A plain search, by comparing at every place.
std::vector<SearchHit> FindPlainly(const std::u16string& text, const std::u16string& wanted, bool matchCase) {
  const auto lower = [&](char16_t unit) {
    return !matchCase && unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 32) : unit;
  };
  std::vector<SearchHit> hits;
  for (std::uint32_t at = 0; at + wanted.size() <= text.size();) {
    std::uint32_t same = 0;
    while (same < wanted.size() && lower(text[at + same]) == lower(wanted[same])) ++same;
    if (same == wanted.size()) hits.push_back({kFirstText, at, same});
    at += same == wanted.size() ? same : 1U;
  }
  return hits;
}

TEST_F(SearchTest, FindsWhatAPlainSearchFinds) {
  std::mt19937 random(20261126);
  const auto draw = [&](std::size_t most) {
    std::u16string text;
    for (std::size_t size = random() % most; size > 0; --size)
      text.push_back(u"abAB.\U00004E2D"[random() % 6]);
    return text;
  };
  for (int round = 0; round < 3000; ++round) {
    const std::u16string text = draw(90);
    const std::u16string wanted = draw(3) + u"b";
    const bool matchCase = random() % 2 == 0;
    exam.Question(1).text = text;
    const std::vector<SearchHit> expected = FindPlainly(text, wanted, matchCase);
    EXPECT_EQ(FindAll(exam, TextSearch({wanted, false, matchCase})).hits, expected);
    const std::u16string pattern = u"\\Q" + wanted + u"\\E";
    EXPECT_EQ(FindAll(exam, TextSearch({pattern, kPattern, matchCase})).hits, expected);
  }
}

TEST_F(SearchTest, CanBeCancelledAndTellsWhyItFailed) {
  exam.Question(3).text = std::u16string(4000, u'a');
  int polls = 0;
  const TextSearch slow({u"((a{0,1000}){0,1000}){0,1000}(\\1)*b", kPattern});
  const SearchOutcome outcome = FindAll(exam, slow, [&] { return ++polls > 20; });
  EXPECT_EQ(outcome.end, SearchEnd::Cancelled);
  EXPECT_EQ(outcome.stoppedAt, (TextPlace{3, ExamFieldName::QuestionText}));
  EXPECT_EQ(TextSearch({u"a(b", kPattern}).PatternError().has_value(), true);
  EXPECT_TRUE(FindAll(exam, TextSearch({u"a(", kPattern})).hits.empty());
}

TEST(HitLine, ShowsAHitOnOneLineWithWhatIsAroundIt) {
  const std::u16string text =
      std::u16string(100, u'.') + u"\U0001F600\r\n\tone\r\ntwo" + std::u16string(100, u'-');
  const HitLine line = LineAround(text, text.find(u"one"), 8);
  EXPECT_EQ(line.text,
            u"…" + std::u16string(27, u'.') + u"\U0001F600  one two" + std::u16string(64, u'-') + u"…");
  EXPECT_EQ(line.text.substr(line.start, line.length), u"one two");
  EXPECT_EQ(LineAround(u"short", 3, 900).text, u"short");
  const HitLine pair =
      LineAround(std::u16string(31, u'a') + u"\U0001F600" + u"bcd" + std::u16string(29, u'x'), 64, 1);
  EXPECT_EQ(pair.text, u"…bcd" + std::u16string(28, u'x') + u"x");
}

}  // namespace
}  // namespace quorvantis::test

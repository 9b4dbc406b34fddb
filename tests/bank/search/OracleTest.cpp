// SPDX-License-Identifier: MIT
#include "bank/BankTest.h"
#include "bank/index/FoldedText.h"
#include "bank/search/Highlights.h"
#include "regex/WordBorders.h"
#include "text/Utf.h"

#include <algorithm>
#include <map>
#include <random>
#include <set>

namespace quorvantis::test {
namespace {

/// Alphabets so small that random words are found, with everything that is special somewhere.
constexpr std::u16string_view kAlphabets[] = {
    u"abAB \u00E9 ",
    u"p H7.,-\"' ",
    u"\u7EC6\u80DE\u6C34\uFF0C",
    u"\u0627\u0628 \u0623\u064E\u0640",
    u"\u0440\u0435 \u0451-",
    u"\u03C0=2*\u00B2()",
    u"\u0E01\u0E32\u0E34",
    u"\U0001F600a\U00020000 ",
    u"\u304B\u304C\u30AB ",
    u"\u05D0\u05B8 \u05D1",
    u"<b></b>&amp;\u0001 *:^AND OR",
    u"\u0915\u093F \u0916",
};

class Texts {
 public:
  explicit Texts(unsigned seed) : random_(seed) {}

  std::size_t Below(std::size_t limit) { return random_() % limit; }
  std::u16string Next(std::size_t most) {
    const std::u16string_view letters = kAlphabets[Below(std::size(kAlphabets))];
    std::u16string text;
    for (std::size_t left = Below(most + 1); left > 0; --left) text.push_back(letters[Below(letters.size())]);
    return text;
  }
  ExamQuestion Question() {
    ExamQuestion question;
    question.text = Next(30) + u" " + Next(10);
    question.kind = static_cast<QuestionKind>(Below(4));
    if (question.kind == QuestionKind::Choice) {
      for (std::u16string& option : question.options) option = Next(6);
    } else if (question.kind == QuestionKind::FillIn) {
      question.answerText = Next(8);
    } else if (question.kind == QuestionKind::Essay) {
      question.essayAnswer = Next(20);
    }
    if (question.text == u" ") question.text = u"x";
    return question;
  }
  /// A part of a text, perhaps changed in case, or anything.
  BankTerm Term(const std::vector<ExamQuestion>& questions) {
    const std::u16string& text = questions[Below(questions.size())].text;
    const std::size_t begin = Below(text.size() + 1);
    std::u16string part = Below(4) == 0 ? Next(3) : text.substr(begin, 1 + Below(5));
    return {FoldForSearch(part), Below(4) == 0, Below(3) == 0};
  }

 private:
  std::mt19937 random_;
};

/// Whether one of the question's texts has the term: found by going through them unit by unit.
bool Has(const ExamQuestion& question, const BankTerm& term) {
  std::vector<std::u16string> texts{question.text, question.answerText, question.essayAnswer};
  texts.insert(texts.end(), question.options.begin(), question.options.end());
  std::size_t characters = 0;
  for (const char16_t unit : term.folded) characters += IsLowSurrogate(unit) ? 0 : 1;
  const bool isWord = characters < 3 && std::all_of(term.folded.begin(), term.folded.end(),
                                                    [](char16_t u) { return IsPartOfWord(u); });
  return std::any_of(texts.begin(), texts.end(), [&](const std::u16string& text) {
    const std::u16string folded = FoldForSearch(text);
    for (std::size_t at = 0; at + term.folded.size() <= folded.size(); ++at) {
      if (folded.compare(at, term.folded.size(), term.folded) != 0) continue;
      const std::size_t end = at + term.folded.size();
      const bool begins = at == 0 || !IsPartOfWord(folded[at - 1]);
      const bool ends = term.isBegun || end == folded.size() || !IsPartOfWord(folded[end]);
      if (!isWord || (begins && ends)) return true;
    }
    return false;
  });
}

using Oracle = BankTest;

TEST_F(Oracle, FindsWhatAScanOfAllTextsFinds) {
  Texts texts(5);
  std::vector<ExamQuestion> all;
  std::set<std::pair<std::string, int>> numbers;
  for (int exam = 0; exam < 12; ++exam) {
    std::vector<ExamQuestion> questions;
    for (int i = 0; i < 40; ++i) questions.push_back(texts.Question());
    WriteExam(exams / ("exam" + std::to_string(exam + 10) + ".exm"), u"", questions);
    all.insert(all.end(), questions.begin(), questions.end());
  }
  ASSERT_FALSE(Update().problem.IsAnything());
  // Changes of the index must not leave anything behind.
  WriteExam(exams / "exam10.exm", u"", {all.begin(), all.begin() + 39});
  all[39].text = all[39].answerText = all[39].essayAnswer = u"";
  all[39].options = {};
  Update();
  BankSearch search(*index, world.services, digest);
  std::map<std::int64_t, std::size_t> places;  // in `all`, of each question
  for (const std::int64_t id : search.FindAll({}, problem)) {
    const auto question = search.Question(id, problem);
    ASSERT_TRUE(question);
    const int exam = std::stoi(question->exam.path.stem().string().substr(4)) - 10;
    places[id] = static_cast<std::size_t>(exam * 40 + question->number - 1);
  }
  ASSERT_EQ(places.size(), all.size() - 1);
  std::size_t found = 0;
  for (int i = 0; i < 600; ++i) {
    BankQuery query;
    for (std::size_t left = 1 + texts.Below(3); left > 0; --left) query.terms.push_back(texts.Term(all));
    std::erase_if(query.terms, [](const BankTerm& term) { return term.folded.empty(); });
    std::set<std::size_t> expected;
    for (std::size_t n = 0; n < all.size(); ++n) {
      const bool isWanted = std::all_of(query.terms.begin(), query.terms.end(), [&](const BankTerm& term) {
        return Has(all[n], term) != term.isExcluded;
      });
      if (isWanted && n != 39) expected.insert(n);
    }
    const std::vector<std::int64_t> ids = search.FindAll(query, problem);
    ASSERT_FALSE(problem.IsAnything()) << problem.detail;
    std::set<std::size_t> actual;
    for (const std::int64_t id : ids) actual.insert(places.at(id));
    if (!ids.empty()) {
      const auto question = search.Question(ids[texts.Below(ids.size())], problem);
      const bool isLit = std::any_of(query.terms.begin(), query.terms.end(),
                                     [](const BankTerm& term) { return !term.isExcluded; });
      EXPECT_EQ(HighlightsOf(*question, query).empty(), !isLit);
    }
    ASSERT_EQ(actual, expected) << "query " << i;
    found += actual.size();
  }
  EXPECT_GT(found, 2000U) << "the queries find something";
}

TEST_F(Oracle, NeverFailsWhateverIsTyped) {
  WriteExam(exams / "a.exm", u"Biology",
            {QuestionWith(u"a \"quoted\" text * AND (NOT) near:x ^ {-} \u7EC6\u80DE")});
  Update();
  Texts texts(6);
  const std::u16string_view pieces[] = {
      u"\"",      u"-",       u"kind:", u"score:>", u"before:2024-99",
      u"has:key", u"exam:\"", u"NEAR(", u"*",       u"'; DROP TABLE exam; --",
      u"\\",      u" "};
  for (int i = 0; i < 200; ++i) {
    std::u16string text;
    for (std::size_t left = texts.Below(6); left > 0; --left)
      text += texts.Below(2) == 0 ? texts.Next(6) : std::u16string(pieces[texts.Below(std::size(pieces))]);
    const BankHits hits =
        BankSearch(*index, world.services, digest).Find(ParseBankQuery(text, i % 2 == 0), 10);
    ASSERT_FALSE(hits.problem.IsAnything()) << Utf16ToUtf8(text) << ": " << hits.problem.detail;
  }
  EXPECT_EQ(CountOf(u"\"* AND (NOT) near:x ^ {-}\""), 1U);
  EXPECT_EQ(CountOf(u"kind:choice exam:bio -has:files \u80DE"), 1U);
}

}  // namespace
}  // namespace quorvantis::test

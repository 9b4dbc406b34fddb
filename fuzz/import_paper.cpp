// SPDX-License-Identifier: MIT
// Marks and parses any paper by any rules. Nothing may crash, an import that ends without a result names a
// rule, and everything that is read fits the exam.
//
// The input is UTF-8: first the rules, each ended by a line feed, in the order of kRules, then the paper.
#include "Require.h"
#include "import/marking/QuestionTextParser.h"
#include "import/marking/TextMarking.h"
#include "model/AnswerLetters.h"
#include "support/RecordingWorld.h"
#include "text/Utf.h"

#include <chrono>

namespace {

using namespace quorvantis;

constexpr std::u16string ImportSettings::*kRules[] = {&ImportSettings::m_strPattern,
                                                      &ImportSettings::m_strPreQuestion,
                                                      &ImportSettings::m_strPreAnswer,
                                                      &ImportSettings::m_strPreParenQuestion,
                                                      &ImportSettings::m_strPreAllAnswer,
                                                      &ImportSettings::m_strTitle,
                                                      &ImportSettings::m_strBmp,
                                                      &ImportSettings::m_strChoiceBmp,
                                                      &ImportSettings::m_strChoiceAnswer,
                                                      &ImportSettings::m_strChoiceAnswerPattern,
                                                      &ImportSettings::m_strJudgementAnswer,
                                                      &ImportSettings::m_strJudgementAnswerPattern};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::u16string input = Utf8ToUtf16({reinterpret_cast<const char*>(data), size});
  std::u16string_view rest = input;
  ImportSettings rules;
  for (const auto rule : kRules) {
    const std::size_t end = rest.find(u'\n');
    rules.*rule = rest.substr(0, end);
    rest.remove_prefix(end == rest.npos ? rest.size() : end + 1);
  }
  // Some patterns take forever; the user's Escape is for those.
  const auto limit = std::chrono::steady_clock::now() + std::chrono::milliseconds(300);
  const CancelHook isCancelled = [limit] { return std::chrono::steady_clock::now() > limit; };
  test::RecordingDebug debug;
  const MarkedText marked = TextToString(rest, rules, isCancelled);
  Require(!marked.failure || !marked.failure->key.empty());
  if (marked.failure) return 0;
  const ReadPaper paper = QuestionTextParser(rules, debug, isCancelled).Parse(marked.text, 1);
  Require(!paper.failure || (paper.questions.empty() && !paper.failure->key.empty()));
  ExamPaper exam;
  const int next = StoreQuestions(paper, exam, 490);
  Require(next >= 490 && next <= kMaxQuestions + 1);
  for (const ReadQuestion& question : paper.questions)
    Require(AnswerLettersToMask(question.letters) == question.mask);
  return 0;
}

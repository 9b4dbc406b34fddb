// SPDX-License-Identifier: MIT
#include "import/AnswerBlock.h"

#include "import/RepeatedSearch.h"
#include "text/AsciiCase.h"

namespace quorvantis {
namespace {

constexpr std::u16string_view kDebugPrefix = u"FrameSetExam::ParseAnswer";

std::u16string_view AfterLastDot(std::u16string_view answer) {
  return answer.substr(answer.rfind(u'.') + 1);
}

}  // namespace

int ParseAnswer(std::u16string_view text, const RuleSearch& item, const RuleSearch& block,
                std::vector<std::u16string>& answers, DebugOutput& debug) {
  const auto found = block.Find(text);
  if (!found) return 0;
  std::u16string rest = GroupText(*found, 0, text);
  debug.Line(std::u16string(kDebugPrefix) + rest);
  RepeatedSearch search(rest, item);
  while (const auto match = search.Find()) {
    std::u16string answer = rest.substr(match->begin, match->Size());
    if (answer.empty()) item.Fail(ImportFailure::Reason::EmptyAnswer);
    debug.Line(std::u16string(kDebugPrefix) + answer);
    rest.erase(match->begin, answer.size());
    search.ChangedFrom(match->begin);
    answers.push_back(std::move(answer));
  }
  return 1;
}

void PickJudgementSymbols(const std::vector<std::u16string>& answers, std::u16string& first,
                          std::u16string& second, int found) {
  if (found != 1 || answers.empty() || answers[0].empty()) return;
  first = AfterLastDot(answers[0]);
  for (std::size_t i = 1; i < answers.size(); ++i) {
    const std::u16string_view symbol = AfterLastDot(answers[i]);
    // Deliberate: compared with all of the first answer and not with its symbol, so that of numbered answers
    // the last one counts, whatever it is. Exams have been made with it.
    if (!EqualsIgnoringAsciiCase(symbol, answers[0])) second = symbol;
  }
}

}  // namespace quorvantis

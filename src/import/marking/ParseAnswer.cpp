// SPDX-License-Identifier: MIT
#include "import/marking/ParseAnswer.h"

#include "import/marking/EditedSequence.h"
#include "import/marking/RepeatedSearch.h"
#include "import/marking/TextOrigins.h"
#include "text/AsciiCase.h"
#include "text/NumberText.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::u16string_view kDebugPrefix = u"FrameSetExam::ParseAnswer";

std::u16string_view AfterLastDot(std::u16string_view answer) {
  return answer.substr(answer.rfind(u'.') + 1);
}

constexpr std::u16string_view kDigits = u"0123456789";
constexpr std::u16string_view kAroundNumbers =
    u" \t\r\n\v.,:;()[]\u3000\u3001\u3010\u3011\uFF08\uFF09\uFF0E\uFF1A";

/// 0 for numbers too large for any paper.
int SmallNumber(std::u16string_view digits) {
  constexpr std::size_t kMostDigits = 4;
  return digits.size() > kMostDigits ? 0 : ParseInteger(digits);
}

/// The number that `answer` begins with, or that `before`, the text in front of it, ends with.
int NumberOfAnswer(std::u16string_view before, std::u16string_view answer) {
  answer.remove_prefix(std::min(answer.find_first_not_of(kAroundNumbers), answer.size()));
  const std::size_t leading = std::min(answer.find_first_not_of(kDigits), answer.size());
  if (leading > 0) return SmallNumber(answer.substr(0, leading));
  before = before.substr(0, before.find_last_not_of(kAroundNumbers) + 1);
  const std::size_t begin = before.find_last_not_of(kDigits) + 1;
  // "6-10" is not the number of an answer.
  constexpr std::u16string_view kDashes = u"-~\u2013\u2014\uFF0D\uFF5E";
  const bool isRange = begin > 0 && kDashes.find(before[begin - 1]) != kDashes.npos;
  return isRange ? 0 : SmallNumber(before.substr(begin));
}

void Tell(DebugOutput& debug, std::u16string_view found) {
  debug.Line(std::u16string().append(kDebugPrefix).append(found));
}

}  // namespace

int ParseAnswer(std::u16string_view text, const RuleSearch& item, const RuleSearch& block,
                std::vector<std::u16string>& answers, DebugOutput& debug,
                std::vector<WrittenAnswer>* written) {
  const auto found = block.Find(text);
  if (!found) return 0;
  std::u16string rest = GroupText(*found, 0, text);
  Tell(debug, rest);
  RepeatedSearch search(rest, item);
  const auto blockBegin = static_cast<std::size_t>(found->GroupStart(0));
  EditedSequence<std::uint32_t> origins(OriginsOfOriginal(written == nullptr ? 0 : rest.size()));
  std::size_t taken = 0;  // where the last answer was
  while (const auto match = search.Find()) {
    std::u16string answer = rest.substr(match->begin, match->Size());
    if (answer.empty()) item.Fail(ImportFailure::Reason::EmptyAnswer);
    Tell(debug, answer);
    if (written != nullptr) {
      const std::size_t from = std::min(taken, match->begin);
      const auto before = std::u16string_view(rest).substr(from, match->begin - from);
      const TextSpan place{blockBegin + origins.At(match->begin),
                           blockBegin + origins.At(match->end - 1) + 1};
      written->push_back({NumberOfAnswer(before, answer), place});
      origins.Replace(match->begin, match->end, 0, kInserted);
    }
    taken = match->begin;
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
    // Deliberate: compared with the whole first answer and not with its symbol, so among numbered answers the
    // last one counts, whatever it is. Exams have been made this way.
    if (!EqualsIgnoringAsciiCase(symbol, answers[0])) second = symbol;
  }
}

}  // namespace quorvantis

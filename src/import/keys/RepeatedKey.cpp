// SPDX-License-Identifier: MIT
#include "import/keys/RepeatedKey.h"

#include "import/keys/QuestionKey.h"
#include "import/labels/LineText.h"
#include "import/lines/FoldedText.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// Whether an answer is the label of an option and its whole text.
bool RepeatsOption(std::u16string_view text, const OptionSequence& options, std::u16string_view answer) {
  const auto first = std::ranges::find_if(answer, [](char16_t unit) { return IsLetterOrDigit(unit); });
  if (first == answer.end()) return false;
  const std::size_t option = OptionNamed(options, *first);
  if (option == options.labels.size()) return false;
  const auto label = static_cast<std::size_t>(first - answer.begin()) + 1;
  const std::u16string said = FoldedCore(answer.substr(label));
  return !said.empty() && said == FoldedCore(FirstLineOf(text, options.labels[option].text).Of(text));
}

/// Where the numbers of the last questions begin anew; the number of questions if they never do.
std::size_t LastRestart(const std::vector<OutlinedQuestion>& questions) {
  for (std::size_t i = questions.size(); i-- > 1;) {
    if (questions[i].number <= questions[i - 1].number) return i;
  }
  return questions.size();
}

}  // namespace

std::optional<KeySection> FindRepeatedKey(std::u16string_view text, const PaperOutline& outline) {
  const std::vector<OutlinedQuestion>& all = outline.questions;
  const std::size_t first = LastRestart(all);
  constexpr std::size_t kFewest = 2;
  if (first + kFewest > all.size()) return std::nullopt;
  const std::size_t begin = Trimmed(text, all[first].label).begin;
  KeySection section{begin, QuestionsBefore(text, outline, begin), {}, {}};
  std::size_t question = 0;
  for (std::size_t i = first; i < all.size(); ++i) {
    while (question < first && section.questions[question].number < all[i].number) ++question;
    const bool isThere = question < first && section.questions[question].number == all[i].number &&
                         section.questions[question].HasOptions();
    const TextSpan said = Trimmed(text, {all[i].label.end, all[i].whole.end});
    const TextSpan line = FirstLineOf(text, said);
    // Behind the last line may be anything.
    const bool isWhole = line.end == said.end || i + 1 == all.size();
    if (!isThere || !isWhole || !RepeatsOption(text, *section.questions[question].options, line.Of(text)))
      return std::nullopt;
    section.entries.push_back({{all[i].number, line, true, all[i].label.begin}, question});
    if (line.end < said.end)
      section.leftovers.push_back({KeyLeftover::Kind::NotPlaced, {line.end, said.end}});
  }
  return section;
}

}  // namespace quorvantis

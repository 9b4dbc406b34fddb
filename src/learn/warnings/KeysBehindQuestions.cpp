// SPDX-License-Identifier: MIT
#include "learn/warnings/KeysBehindQuestions.h"

#include "import/labels/OptionAlphabets.h"
#include "regex/WordBorders.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::size_t kSeveralLines = 2;

/// "б because it says so" begins with a letter by itself.
bool BeginsWithLetter(const ReadQuestion& question) {
  const std::u16string& text = question.text;
  return question.kind != ReadKind::Choice && !text.empty() && !AlphabetLettersOf(text.front()).empty() &&
         (text.size() == 1 || !IsPartOfWord(text[1]));
}

/// The numbers of the questions, by their index; 0 for one without.
std::vector<int> NumberOfEach(std::size_t count, const std::vector<PaperNumber>& numbers) {
  std::vector<int> values(count, 0);
  for (const PaperNumber& number : numbers) {
    if (number.question >= 0 && static_cast<std::size_t>(number.question) < count)
      values[static_cast<std::size_t>(number.question)] = number.value;
  }
  return values;
}

}  // namespace

std::map<std::size_t, std::u16string> KeysBehindQuestions(const std::vector<ReadQuestion>& questions,
                                                          const std::vector<PaperNumber>& numbers) {
  const std::vector<int> values = NumberOfEach(questions.size(), numbers);
  std::size_t first = questions.size();
  while (first > 0 && BeginsWithLetter(questions[first - 1])) --first;
  const auto end = values.begin() + static_cast<std::ptrdiff_t>(first);
  std::map<std::size_t, std::u16string> shown;
  for (std::size_t i = first; i < questions.size(); ++i) {
    const bool isRepeated = values[i] != 0 && std::find(values.begin(), end, values[i]) != end;
    if (isRepeated) shown.emplace(i, std::u16string(1, questions[i].text.front()));
  }
  if (shown.size() < kSeveralLines) shown.clear();
  return shown;
}

}  // namespace quorvantis

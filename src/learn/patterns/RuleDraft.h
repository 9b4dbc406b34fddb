// SPDX-License-Identifier: MIT
#pragma once

#include "import/marking/ImportSettings.h"
#include "learn/patterns/NumberFamilies.h"
#include "learn/patterns/OptionFamily.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace quorvantis {

/// A layout, as far as it has been worked out; becomes rules.
struct RuleDraft {
  std::vector<NumberFamily> numbers{};  ///< none: questions get their numbers from a step
  OptionFamily options{};
  LabelPlaces optionPlaces = LabelPlaces::LineStarts;
  std::set<std::u16string> answerLabels{};  ///< as they are written, "Answer:"
  bool labelsWithinLines = false;           ///< an answer label may stand within a line
  std::set<std::u16string> headings{};      ///< patterns of whole lines
  std::u16string answersFrom{};             ///< the pattern of the line that the answers at the end follow
  std::set<std::u16string, std::less<>> steps{};  ///< names of preparations

  /// Places that no family has and that were marked, as patterns (MarkedLiterals.h).
  std::set<std::u16string> questionBegins{};
  std::map<std::size_t, std::set<std::u16string>> optionBegins{};  ///< by the index of the option
  std::set<std::u16string> noQuestions{};                          ///< beginnings of lines that are none

  bool HasStep(std::u16string_view step) const { return steps.contains(step); }
};

/// The rules of a layout.
ImportSettings RulesOf(const RuleDraft& draft);

/// Whether every rule fits a line of "ImportExam.ini".
bool FitsFile(const ImportSettings& rules);

}  // namespace quorvantis

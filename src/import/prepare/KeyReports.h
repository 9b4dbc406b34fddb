// SPDX-License-Identifier: MIT
// What steps about keys have left alone because it was not clear, for those who tell the teacher.
#pragma once

#include "import/keys/KeySection.h"
#include "import/prepare/PreparationSteps.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvantis {

/// The running text, or that with the tables, prepared by those steps that run before `step`. Throws
/// ImportFailure.
PaperText PreparedBefore(const Paper& paper, const ImportSettings& rules, std::u16string_view step,
                         const CancelHook& isCancelled);

/// An answer of a choice question that names none of its options, or more than one reading of it.
struct UnclearKey {
  std::size_t question = 0;  ///< index in the outline before the step
  int number = 0;            ///< of the question, as written
  std::u16string answer{};
};

/// The answers that KeyLetters can't turn into letters. Throws ImportFailure.
std::vector<UnclearKey> KeysNotOptions(const Paper& paper, const ImportSettings& rules,
                                       const CancelHook& isCancelled);

/// A question with two answers that differ.
struct KeyConflict {
  std::size_t question = 0;  ///< index among the questions before the answers at the end
  int number = 0;            ///< of the question, as written
  std::u16string own{};
  std::u16string atEnd{};
};

/// What KeyAtEnd does not give to questions.
struct KeyAtEndReport {
  bool isFound = false;      ///< answers at the end, which the step takes out of the paper
  bool isUnmatched = false;  ///< there are answers at the end, but they stay: it is not clear whose they are
  std::vector<KeyConflict> conflicts{};  ///< own answers that stay although the key says something else
  std::vector<std::pair<KeyLeftover, std::u16string>> leftovers{};  ///< each with its text
};

/// Throws ImportFailure.
KeyAtEndReport ReportKeyAtEnd(const Paper& paper, const ImportSettings& rules, const CancelHook& isCancelled);

}  // namespace quorvantis

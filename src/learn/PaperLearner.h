// SPDX-License-Identifier: MIT
#pragma once

#include "learn/reading/PaperReading.h"
#include "learn/reading/PaperRole.h"

#include <functional>
#include <string>
#include <vector>

namespace quorvantis {

/// What a teacher says of a part of a paper.
struct PaperMark {
  TextSpan span;  ///< in Paper::source
  PaperRole role = PaperRole::None;

  friend bool operator==(const PaperMark&, const PaperMark&) = default;
};

/// Something that was understood of a paper, as a text with values (LearnedTexts.h).
struct LearnedFact {
  int text = 0;  ///< its number in the string table
  std::vector<std::u16string> values{};
};

/// The rules that were worked out for a paper.
struct LearnedRules {
  ImportSettings rules;
  double confidence = 0;                ///< 0 to 1: how sure they are
  std::vector<LearnedFact> facts;       ///< what was understood, the most important first
  std::vector<std::size_t> unfollowed;  ///< indices of marks that the rules do not follow
  bool wasCancelled = false;            ///< then there are no rules
};

struct LearnOptions {
  CancelHook isCancelled{};                             ///< may be empty
  std::function<void(int done, int total)> progress{};  ///< may be empty
};

/// Works out the rules of a paper, without any mark or with some. Every proposal is judged by what the import
/// itself makes of it (ReadByRules). Papers beyond kMostLearned are judged by their beginning.
LearnedRules LearnRules(const Paper& paper, const std::vector<PaperMark>& marks, const LearnOptions& options);

/// In UTF-16 units.
inline constexpr std::size_t kMostLearned = 160'000;

}  // namespace quorvantis

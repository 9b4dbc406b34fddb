// SPDX-License-Identifier: MIT
#pragma once

#include "import/paper/PaperOutline.h"
#include "import/prepare/PreparationMemory.h"
#include "learn/MarkedPlaces.h"
#include "learn/PaperLearner.h"
#include "learn/ReadingScore.h"
#include "learn/patterns/RuleDraft.h"

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// A layout that was tried.
struct TriedLayout {
  RuleDraft draft;
  ImportSettings rules;
  PaperReading reading;
  ReadingScore score;
  double followed = 1;  ///< share of the marks that the reading follows
  double total = -1e9;  ///< all of it in one number; more is better
};

/// Searches for the layout whose reading is best: first the numbers of questions and the labels of options,
/// then the labels of answers and headings, then the steps that improve it. Throws ImportFailure when it is
/// cancelled.
class LayoutSearch {
 public:
  /// All must outlive the search.
  LayoutSearch(const Paper& paper, const MarkedPlaces& marks, const LearnOptions& options)
      : paper_(paper), marks_(marks), options_(options) {}

  TriedLayout Search();

 private:
  using Steps = std::set<std::u16string, std::less<>>;

  void TryNumbers(const Steps& steps);
  void TryNumberedOptions(const Steps& steps);
  void TryFamilies(const PaperText& text, const std::vector<NumberFamily>& numbers, const Steps& steps);
  void TryForgottenNumbers(const PaperText& text, RuleDraft draft);
  void TryOptions(RuleDraft draft);
  void TryPlainOptions(const RuleDraft& draft);
  /// Labels that say "answer" in some language, or those that do not.
  enum class LabelKinds { Words, Others };
  void TryAnswerLabels(LabelKinds kinds);
  void TryLabels(const std::set<std::u16string>& labels, bool withinLines);
  bool AreInstructionsMarked(const PaperText& text, const PaperOutline& outline) const;
  void TryHeadings();
  void TryMarkedHeadings();
  void TryMarkedPlaces();
  void TrySteps();
  bool TryBestStep();
  void Simplify();

  /// Takes a layout if it is better than the best one so far, or as good with `orAsGood`.
  bool Try(RuleDraft draft, bool orAsGood = false);
  TriedLayout Tried(RuleDraft draft);
  PaperText Prepared(const RuleDraft& draft);
  PaperOutline Outline(const PaperText& text, const RuleDraft& draft);
  std::vector<TextSpan> Bodies(const PaperText& text, const RuleDraft& draft);
  void Check() const;

  const Paper& paper_;
  const MarkedPlaces& marks_;
  const LearnOptions& options_;
  PreparationMemory memory_;
  TriedLayout best_;
};

}  // namespace quorvantis

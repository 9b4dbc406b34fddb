// SPDX-License-Identifier: MIT
#pragma once

#include "import/marking/EditedSequence.h"
#include "import/marking/MarkingTrace.h"
#include "import/marking/RepeatedSearch.h"

#include <string>
#include <string_view>

namespace quorvantis {

/// Replaces every match of a rule by a marker: search, replace, and search again from the first character,
/// until nothing matches. It recognises a pass that would never end, as opposed to a slow one.
///
/// A replacement is progress if it takes a character of the document, or an empty place between two of them:
/// a text has only so many of these. So a pass goes on forever only if at some point everything it replaces
/// is in or at its own markers. That is certain if the next search will see the same again; see ComesUpAgain.
/// Other rules, which wander through their markers, may still end. They get kMostFutile replacements in a
/// row, a run of markers longer than any paper needs.
class ReplaceAllPass {
 public:
  static constexpr int kMostFutile = 2'000;

  /// `marker` is some number of the same character. `trace`, if given, follows the text. All must outlive
  /// the pass.
  ReplaceAllPass(std::u16string& text, const RuleSearch& rule, std::u16string_view marker,
                 MarkingTracer* trace = nullptr);

  /// Replaces until nothing matches; returns the number of times. Throws ImportFailure.
  int Run();

  /// Replaces only the first match; returns whether there was one.
  bool RunOnce();

 private:
  void Replace(const MatchSpan& match);
  void WatchForEnd(const MatchSpan& match);
  bool IsMade(std::size_t index) const { return index < made_.Size() && made_.At(index) != 0; }
  bool IsProgress(const MatchSpan& match) const;
  bool ComesUpAgain(const MatchSpan& match) const;

  std::u16string& text_;
  const RuleSearch& rule_;
  const std::u16string_view marker_;
  MarkingTracer* trace_;
  RepeatedSearch search_;
  EditedSequence<char> made_;  ///< not 0 for the characters of the text that belong to markers
  int futile_ = 0;             ///< consecutive replacements without progress
};

/// Deletes every match of a rule together with ten characters before it; returns the number of times.
/// `trace`, if given, follows the text.
int RemoveTitles(std::u16string& text, const RuleSearch& rule, MarkingTracer* trace = nullptr);

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "import/EditedFlags.h"
#include "import/RepeatedSearch.h"

#include <string>
#include <string_view>

namespace quorvantis {

/// Puts a marker in the place of every match of a rule: search, replace, and search again from the first
/// character, until nothing matches. A pass that would never end is told from one that takes long.
///
/// A replacement is progress when it takes a character of the document, or an empty place between two of
/// them: a text has only so many of these. So a pass goes on for ever only if, from some time on, all that it
/// replaces lies in or at its own markers. That is certain when the next search will see the same again; see
/// ComesUpAgain. Other rules, which wander through their markers, may still end. They get kMostFutile
/// replacements in a row for it, which makes a run of markers longer than any paper has use for.
class ReplaceAllPass {
 public:
  static constexpr int kMostFutile = 2'000;

  /// `marker` is some number of the same character. All must outlive the pass.
  ReplaceAllPass(std::u16string& text, const RuleSearch& rule, std::u16string_view marker);

  /// Replaces until nothing matches; how many times. Throws ImportFailure.
  int Run();

  /// Replaces the first match only; whether there was one.
  bool RunOnce();

 private:
  void Replace(const MatchSpan& match);
  void WatchForEnd(const MatchSpan& match);
  bool IsProgress(const MatchSpan& match) const;
  bool ComesUpAgain(const MatchSpan& match) const;

  std::u16string& text_;
  const RuleSearch& rule_;
  const std::u16string_view marker_;
  RepeatedSearch search_;
  EditedFlags made_;  ///< which characters of the text are of markers
  int futile_ = 0;    ///< replacements in a row that were no progress
};

/// Deletes every match of a rule together with ten characters before it; how many times.
int RemoveTitles(std::u16string& text, const RuleSearch& rule);

}  // namespace quorvantis

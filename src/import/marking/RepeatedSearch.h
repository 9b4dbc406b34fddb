// SPDX-License-Identifier: MIT
#pragma once

#include "import/marking/RuleSearch.h"

#include <cstddef>
#include <optional>
#include <string>

namespace quorvantis {

/// Searches a text for a rule, again and again while the text changes. Each search finds what a search from
/// the first character would, but skips the starts that fail as before; see FailedStarts.
class RepeatedSearch {
 public:
  /// Both must outlive the search.
  RepeatedSearch(const std::u16string& text, const RuleSearch& rule) : text_(text), rule_(rule) {}

  std::optional<MatchSpan> Find() {
    const auto match = rule_.Find(text_, start_, &failed_);
    return match ? std::optional<MatchSpan>(*match) : std::nullopt;
  }

  /// The text has changed since the last match, from `place` on.
  void ChangedFrom(std::size_t place) {
    start_ = static_cast<std::size_t>(failed_.ResumeAfterChange(static_cast<int>(place)));
  }

  /// The last character that mattered for the last match; the size of the text if its end did.
  std::size_t Seen() const { return static_cast<std::size_t>(failed_.Seen()); }

 private:
  const std::u16string& text_;
  const RuleSearch& rule_;
  FailedStarts failed_;
  std::size_t start_ = 0;
};

}  // namespace quorvantis

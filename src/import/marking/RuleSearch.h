// SPDX-License-Identifier: MIT
#pragma once

#include "import/marking/ImportFailure.h"
#include "regex/RegexFlags.h"
#include "regex/RegexPattern.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace quorvantis {

/// Polled while rules are tried; true cancels the import. May be empty.
using CancelHook = std::function<bool()>;

/// All rules are compiled alike: "." matches line breaks and "^" and "$" match at them.
inline constexpr auto kRuleFlags = regex_flag::kSingleLine | regex_flag::kMultiLine;

/// One rule of a repository, ready to be searched for. An empty or invalid rule matches nothing.
class RuleSearch {
 public:
  /// `key` is the name of the rule in "ImportExam.ini".
  RuleSearch(std::u16string_view key, std::u16string_view pattern, const CancelHook& isCancelled);

  /// The leftmost match at `start` or after it, if any. Throws ImportFailure if the match was cancelled or
  /// ran out of memory. `failed`, if given, receives the failed starts.
  std::optional<MatchResult> Find(std::u16string_view text, std::size_t start = 0,
                                  FailedStarts* failed = nullptr) const;

  [[noreturn]] void Fail(ImportFailure::Reason reason) const { throw ImportFailure{reason, key_}; }

  const std::u16string& Key() const { return key_; }
  const RegexPattern& Pattern() const { return pattern_; }

 private:
  std::u16string key_;
  RegexPattern pattern_;
  const CancelHook& isCancelled_;
};

/// Where a match lies in its text.
struct MatchSpan {
  explicit MatchSpan(const MatchResult& match)
      : begin(static_cast<std::size_t>(match.GroupStart(0))),
        end(static_cast<std::size_t>(match.GroupEnd(0))) {}

  std::size_t Size() const { return end - begin; }

  std::size_t begin;
  std::size_t end;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "regex/MatchContext.h"
#include "regex/MatchResult.h"
#include "regex/RegexError.h"
#include "regex/RegexProgram.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvantis {

/// A compiled regular expression over UTF-16 units, by the rules of backtracking engines. One thread at a
/// time may use it.
class RegexPattern {
 public:
  /// An empty object, which matches nothing.
  RegexPattern() = default;
  RegexPattern(std::u16string_view pattern, int flags) { Compile(pattern, flags); }

  /// Replaces what was compiled before. A view without data leaves the object empty, as does a pattern with a
  /// syntax error, which CompileError then describes. `flags` is a sum of regex_flag values.
  void Compile(std::u16string_view pattern, int flags);

  /// Where and why the last pattern could not be compiled; nothing if it could.
  const std::optional<RegexError>& CompileError() const { return error_; }
  bool IsEmpty() const { return !program_; }

  /// The number of groups, with the whole match as one of them; 0 for an empty object.
  int Groups() const { return program_ ? program_->groups : 0; }

  /// The first match, in scan order, in `text`, which ends where the view does (see TextBeforeNul). The scan
  /// begins at `start` (UTF-16 units); -1 is where the context's previous match ended, or the start of the
  /// text (its end with right-to-left). A start beyond the end gives no match, or is the end with
  /// right-to-left.
  MatchResult Match(std::u16string_view text, int start = -1, MatchContext* context = nullptr) const;

  /// The number of a named group, without regard to the case of ASCII letters; kNoSuchGroup for none.
  int GetNamedGroupNumber(std::u16string_view name) const;
  static constexpr int kNoSuchGroup = -3;

  /// Names and numbers of the named groups, in the order of the pattern.
  const std::vector<std::pair<std::u16string, int>>& GroupNames() const { return names_; }

 private:
  std::optional<RegexProgram> program_;
  std::optional<RegexError> error_;
  std::vector<std::pair<std::u16string, int>> names_;
};

/// The part of a text before its first NUL, for callers whose texts end there. Finding it takes longer than
/// most matches, so do it once per text, not per match.
std::u16string_view TextBeforeNul(std::u16string_view text);

}  // namespace quorvantis

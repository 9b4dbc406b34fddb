// SPDX-License-Identifier: MIT
#include "regex/RegexPattern.h"

#include "regex/RegexCompiler.h"
#include "regex/RegexFlags.h"
#include "regex/RegexMatcher.h"
#include "regex/RegexParser.h"

#include <algorithm>

namespace quorvantis {

void RegexPattern::Compile(std::u16string_view pattern, int flags) {
  program_.reset();
  error_.reset();
  names_.clear();
  if (!pattern.data()) return;
  try {
    ParsedPattern parsed = ParseRegex(pattern, flags);
    program_ = CompileProgram(parsed, (flags & regex_flag::kRightToLeft) != 0);
    names_ = std::move(parsed.names);
  } catch (const RegexError& error) {
    error_ = error;
  }
}

MatchResult RegexPattern::Match(std::u16string_view text, int start, MatchContext* context) const {
  if (!program_) return MatchResult(MatchOutcome::NoMatch);
  MatchContext ownContext;
  MatchContext& used = context ? *context : ownContext;
  const int length = static_cast<int>(text.size());
  if (start < 0) start = used.previousEnd >= 0 ? used.previousEnd : program_->backward ? length : 0;
  if (start > length && !program_->backward) return MatchResult(MatchOutcome::NoMatch);
  MatchResult result = RegexMatcher(*program_, text, used).Find(std::min(start, length));
  if (result.IsMatched()) used.previousEnd = program_->backward ? result.GroupStart(0) : result.GroupEnd(0);
  return result;
}

std::u16string_view TextBeforeNul(std::u16string_view text) {
  return text.substr(0, text.find(u'\0'));
}

int RegexPattern::GetNamedGroupNumber(std::u16string_view name) const {
  const int group = FindGroup(names_, name);
  return group == 0 ? kNoSuchGroup : group;
}

}  // namespace quorvantis

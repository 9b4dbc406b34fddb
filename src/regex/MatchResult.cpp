// SPDX-License-Identifier: MIT
#include "regex/MatchResult.h"

namespace quorvantis {

std::u16string GroupText(const MatchResult& result, int group, std::u16string_view subject) {
  const int start = result.GroupStart(group);
  const int end = result.GroupEnd(group);
  if (group < 0 || start < 0 || end < start || static_cast<std::size_t>(end) > subject.size()) return {};
  return std::u16string(
      subject.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(end - start)));
}

}  // namespace quorvantis

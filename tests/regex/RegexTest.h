// SPDX-License-Identifier: MIT
#pragma once

#include "regex/RegexPattern.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvantis::test {

/// The bounds of all groups, "0-3 1-2 -"; "no match"; or "error at 3".
inline std::string Bounds(const RegexPattern& pattern, const MatchResult& result) {
  if (pattern.CompileError()) return "error at " + std::to_string(pattern.CompileError()->position);
  if (!result.IsMatched()) return "no match";
  std::string bounds;
  for (int group = 0; group < result.Groups(); ++group) {
    const std::string start = std::to_string(result.GroupStart(group));
    if (group > 0) bounds += ' ';
    bounds += result.GroupStart(group) < 0 ? "-" : start + "-" + std::to_string(result.GroupEnd(group));
  }
  return bounds;
}

}  // namespace quorvantis::test

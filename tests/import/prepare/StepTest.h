// SPDX-License-Identifier: MIT
#pragma once

#include "import/prepare/PreparationSteps.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

namespace quorvantis::test {

/// Rules for "1." and "Answer:", as the tests' papers have them.
inline ImportSettings KeyRules(std::u16string_view prepare) {
  ImportSettings rules;
  rules.m_strPreQuestion =
      u"\\s*^(?:[0-9]{1,3}|[\uFF10-\uFF19]{1,3}|[\u0660-\u0669]{1,3})[.)\uFF0E\u3001\uFF09][ \\t]*";
  rules.m_strPreAnswer = u"\\s*^(?:Answer:|\u7B54\u6848[:\uFF1A]|\u27E6=\u27E7)[ \\t]*";
  rules.prepare = ReadPrepareList(prepare);
  return rules;
}

/// The text after the steps, with LF for CR. Checks that each step changes nothing when it runs again.
inline std::u16string AfterSteps(std::u16string_view prepare, const Paper& paper) {
  const ImportSettings rules = KeyRules(prepare);
  PreparedText prepared = PreparePaper(paper, rules, {});
  EXPECT_FALSE(prepared.failure.has_value());
  EXPECT_EQ(prepared.text.emphasis.size(), prepared.text.Size());
  EXPECT_EQ(prepared.text.origins.size(), prepared.text.Size());
  const std::u16string once = prepared.text.characters;
  for (const PreparationStep& step : PreparationSteps()) {
    if (std::ranges::find(rules.prepare, step.name) != rules.prepare.end())
      step.apply(prepared.text, {paper, rules, {}});
  }
  EXPECT_EQ(prepared.text.characters, once);
  std::u16string text = once;
  for (char16_t& unit : text) {
    if (unit == u'\r') unit = u'\n';
  }
  return text;
}

inline std::u16string AfterSteps(std::u16string_view prepare, std::u16string_view text) {
  return AfterSteps(prepare, PaperOf(text));
}

/// For each question of a prepared text its answer, a line each; "-" without one.
inline std::u16string AnswersIn(std::u16string_view text) {
  std::u16string answers;
  for (std::size_t at = text.find(u"\u27E6=\u27E7 "); at != text.npos;
       at = text.find(u"\u27E6=\u27E7 ", at + 1)) {
    const std::size_t end = std::min(text.find(u'\n', at), text.size());
    answers += std::u16string(text.substr(at + 4, end - at - 4)) + u"|";
  }
  return answers;
}

/// Three questions with four options each, and an open one.
inline constexpr std::u16string_view kSmallPaper =
    u"Test\n\n1. One?\nA. ant\nB. bee\nC. cat\nD. dog\n\n2. Two?\nA. ant\nB. bee\nC. cat\nD. dog\n\n"
    u"3. Three?\nA. ant\nB. bee\nC. cat\nD. dog\n\n4. Plants make sugar by ___.\n";

inline std::string Narrow(std::u16string_view text) {
  std::string narrow;
  for (const char16_t unit : text) narrow += unit < 0x80 ? static_cast<char>(unit) : '?';
  return narrow;
}

}  // namespace quorvantis::test

// SPDX-License-Identifier: MIT
// Steps, each run by itself on a text.
#pragma once

#include "import/prepare/PreparationSteps.h"

#include <gtest/gtest.h>

namespace quorvantis::test {

/// Rules of a plain paper: "1." begins a question and "Answer:" its answer.
inline ImportSettings PlainRules() {
  ImportSettings rules;
  rules.m_strPreQuestion = u"\\s*^[0-9]+[.)]\\s*";
  rules.m_strPreAnswer = u"\\s*^(?:Answer:|\u27E6=\u27E7)[ \\t]*";
  rules.m_strPreAllAnswer = u"\\s*^Answer key$";
  return rules;
}

inline PaperText AfterStep(std::u16string_view step, const Paper& paper, const ImportSettings& rules,
                           PaperText text) {
  const CancelHook never;
  const PreparationContext context{paper, rules, never};
  for (const PreparationStep& one : PreparationSteps()) {
    if (one.name == step) one.apply(text, context);
  }
  return text;
}

/// A text in which "|" stands for the end of a line.
inline std::u16string Lines(std::u16string_view text) {
  std::u16string lines(text);
  for (char16_t& unit : lines) unit = unit == u'|' ? u'\r' : unit;
  return lines;
}

/// Whether all of it is consistent: what has an origin is the character that stands there, or was rewritten.
inline void CheckTracks(const Paper& paper, const PaperText& text) {
  ASSERT_EQ(text.emphasis.size(), text.Size());
  ASSERT_EQ(text.origins.size(), text.Size());
  for (const std::uint32_t origin : text.origins)
    ASSERT_TRUE(origin == kInserted || origin < paper.source.Size());
}

struct StepRow {
  std::u16string_view step;
  std::u16string_view before;
  std::u16string_view after;
};

/// Runs a step, and once more: nothing may change then.
inline void CheckStep(const StepRow& row, const ImportSettings& rules = PlainRules()) {
  const Paper paper = PaperOf(Lines(row.before));
  const PaperText once = AfterStep(row.step, paper, rules, paper.source);
  EXPECT_EQ(once.characters, Lines(row.after)) << "before: " << ::testing::PrintToString(row.before);
  CheckTracks(paper, once);
  EXPECT_EQ(AfterStep(row.step, paper, rules, once).characters, once.characters) << "a second time";
}

}  // namespace quorvantis::test

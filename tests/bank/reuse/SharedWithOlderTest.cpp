// SPDX-License-Identifier: MIT
#include "bank/reuse/SharedWithOlder.h"
#include "platform/QuietProgress.h"

#include <gtest/gtest.h>

#include <utility>

namespace quorvantis::test {
namespace {

using Texts = std::vector<std::u16string>;

TEST(SharedWithOlder, TellsWhatEachExamHasInCommon) {
  const Texts open{u"Which planet of the solar system is the largest one?",
                   u"Calculate the force on a body of 20 kilograms that falls freely.",
                   u"Name the organ that cleans the blood of the human body.", u""};
  const std::pair<std::size_t, std::u16string> past[] = {
      {7, u"Which planet of the solar system is the largest one"},
      {7, u"Calculate the force on a body of 25 kilograms that falls freely."},
      {7, u"Which planet of our solar system is the largest one?"},
      {3, u"What do plants need to grow, apart from water and air?"},
      {5, u"Calculate the force on a body of 20 kilograms that falls freely!"},
      {5, u"Calculate the force on a body of 30 kilograms that falls freely."}};
  std::vector<ComparedQuestion> exam;
  for (const std::u16string& text : open) exam.emplace_back(QuestionContent{{}, text, {}, {}, {}});
  std::vector<ComparedQuestion> compared;
  std::vector<OlderQuestion> older;
  for (const auto& [number, text] : past) {
    compared.emplace_back(QuestionContent{{}, text, {}, {}, {}});
    older.push_back({number, static_cast<int>(older.size() + 1), QuestionSketch(compared.back().All())});
  }
  QuietProgress progress;
  const ReuseReport report = SharedWithOlder(
      exam, older, [&](std::size_t place) { return std::optional(compared[place]); }, progress);
  std::vector<std::pair<std::size_t, std::size_t>> uses;
  for (const EarlierUse& use : report.uses) uses.emplace_back(use.question, use.older);
  EXPECT_EQ(uses, (std::vector<std::pair<std::size_t, std::size_t>>{{0, 0}, {0, 2}, {1, 4}, {1, 1}, {1, 5}}));
  ASSERT_EQ(report.exams.size(), 2U);
  EXPECT_EQ(report.exams[0].exam, 7U);
  EXPECT_EQ(report.exams[0].same, 1U);
  EXPECT_EQ(report.exams[0].variants, 1U);
  EXPECT_EQ(report.exams[1].exam, 5U);
  EXPECT_EQ(report.exams[1].variants, 0U);
  EXPECT_DOUBLE_EQ(report.exams[1].share, 1.0 / 3);
  EXPECT_EQ(report.unused, 1U);
}

}  // namespace
}  // namespace quorvantis::test

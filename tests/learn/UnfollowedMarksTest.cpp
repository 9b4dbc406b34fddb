// SPDX-License-Identifier: MIT
#include "learn/LeftOutPlaces.h"
#include "learn/UnfollowedMarks.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace quorvantis::test {
namespace {

using Why = UnfollowedMark::Why;

constexpr std::u16string_view kTwoReadings =
    u"Test\n1. Capitals\na) Where is Rome?\nb) Where is Oslo?\nc) Where is Bonn?\n2. Rivers\na) Where is the "
    u"Nile?\nb) Where is the Po?\nc) Where is the Don?\n3. Seas\na) Where is the Red Sea?\nb) Where is the "
    u"Dead "
    u"Sea?\nc) Where is the North Sea?\n";

/// The mark of the text that follows `before`.
PaperMark MarkOf(std::u16string_view before, std::u16string_view text, PaperRole role) {
  const std::size_t begin = kTwoReadings.find(text, kTwoReadings.find(before) + before.size());
  return {{begin, begin + text.size()}, role};
}

struct Asked {
  const char* what;
  std::vector<PaperMark> marks;
  std::vector<std::pair<std::size_t, Why>> reasons;
  std::size_t other = 0;
};

TEST(UnfollowedMarks, AreExplainedByWhatIsInTheirWay) {
  const PaperMark option = MarkOf(u"Capitals", u"a)", PaperRole::OptionLabel);
  const PaperMark answer = MarkOf(u"Rivers", u"a)", PaperRole::AnswerLabel);
  const PaperMark word = MarkOf(u"b) ", u"Oslo", PaperRole::NotExam);
  const PaperMark middle = MarkOf(u"Where is ", u"Rome", PaperRole::QuestionNumber);
  const Asked rows[] = {
      {"followed", {option}, {}},
      {"followed otherwise", {answer}, {}},
      {"two against each other", {option, answer}, {{1, Why::Contradicted}}, 0},
      {"part of a line", {word}, {{0, Why::WithinLine}}},
      {"a rule for one place", {middle}, {}},
  };
  const Paper paper = PaperOf(kTwoReadings);
  for (const Asked& row : rows) {
    const auto unfollowed = LearnRules(paper, row.marks, {}).unfollowed;
    std::vector<std::pair<std::size_t, Why>> reasons;
    for (const UnfollowedMark& mark : WhyUnfollowed(paper, row.marks, unfollowed, {})) {
      reasons.emplace_back(mark.mark, mark.why);
      EXPECT_EQ(mark.other, row.other) << row.what;
    }
    EXPECT_EQ(reasons, row.reasons) << row.what;
  }
}

TEST(LeftOutPlaces, AreFoundByTheirBeginning) {
  const Paper paper = PaperOf(u"Why now?\nWhy\tnot\nWhy\tnot at all");
  std::vector<RolePart> roles = {{{0, 9}, PaperRole::NotExam, -1}, {{9, 17}, PaperRole::Option, 0}};
  roles.push_back({{17, paper.source.Size()}, PaperRole::None, -1});
  const RoleLookup lookup(roles);
  LeftOutPlaces leftOut(paper, lookup);
  EXPECT_EQ(leftOut.Find(u"Why not\u2026")->begin, 17U);  // the one before it is an option
  EXPECT_EQ(leftOut.Find(u"Why now?")->end, 8U);
  EXPECT_FALSE(leftOut.Find(u"When?"));
  EXPECT_FALSE(leftOut.Find(u"\u2026"));
}

}  // namespace
}  // namespace quorvantis::test

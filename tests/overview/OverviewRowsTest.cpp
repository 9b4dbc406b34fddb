// SPDX-License-Identifier: MIT
#include "overview/OverviewRows.h"
#include "platform/posix/PosixFiles.h"
#include "support/RecordingWorld.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

/// `answer` are the letters, the answers or the model answer.
ExamQuestion Make(QuestionKind kind, std::u16string text, const std::u16string& answer = {},
                  OptionTexts options = {}) {
  ExamQuestion question;
  question.kind = kind;
  question.text = std::move(text);
  question.options = std::move(options);
  (kind == QuestionKind::Choice   ? question.answerLetters
   : kind == QuestionKind::FillIn ? question.answerText
                                  : question.essayAnswer) = answer;
  return question;
}

constexpr auto kChoice = QuestionKind::Choice;
constexpr auto kFillIn = QuestionKind::FillIn;
constexpr auto kEssay = QuestionKind::Essay;

class Overview : public testing::Test {
 protected:
  Overview() {
    exam.Question(1) = Make(kChoice, u"\r\n  What is \tblue?  \r\nTwo lines", u"ab", {u"sky", u"sea"});
    exam.Question(2) = Make(kFillIn, u"Fill ____", u"one<@> two <@>");
    exam.Question(3) = Make(kEssay, u"", u"Model\r\nmore");
    exam.Question(4) = Make(QuestionKind::Oral, u"Speak of Ärger");
    exam.Question(5) = Make(static_cast<QuestionKind>(9), u"odd");
  }

  std::vector<int> Numbers(const OverviewFilter& filter) const {
    std::vector<int> numbers;
    for (const OverviewRow& row : OverviewRows({exam, 5}, filter)) numbers.push_back(row.number);
    return numbers;
  }

  TemporaryFolder folder;
  PosixFiles files;
  RecordingWorld world{folder / "app", files};
  FrameSetExam exam{world.services};
};

TEST_F(Overview, ShowsFirstLinesAndKeys) {
  const std::vector<OverviewRow> rows = OverviewRows({exam, 5});
  const std::array<std::u16string, 5> lines{u"What is  blue?", u"Fill ____", u"", u"Speak of Ärger", u"odd"};
  const std::array<std::u16string, 5> keys{u"A B", u"one / two", u"Model", u"", u""};
  ASSERT_EQ(rows.size(), 5U);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(rows[i].firstLine, lines[i]);
    EXPECT_EQ(rows[i].key, keys[i]);
    EXPECT_EQ(rows[i].score, std::nullopt);
    EXPECT_EQ(rows[i].missing, MissingParts{.text = i == 2});
  }
  const ExamQuestion edited = Make(kChoice, std::u16string(249, u'x') + u"\U0001F600");
  EXPECT_EQ(OverviewRows({exam, 1, 1, edited})[0].firstLine.size(), 249U) << "no half character";
}

TEST_F(Overview, TellsWhatIsMissing) {
  const std::pair<ExamQuestion, MissingParts> rows[] = {
      {Make(kChoice, u"", u"a", {u"a", u"b"}), {.text = true}},
      {Make(kChoice, u"t", u"", {u"a", u"b"}), {.key = true}},
      {Make(kChoice, u"t", u"a", {u"a"}), {.options = true}},
      {Make(kChoice, u"t", u"a", {u"a", u" ", u"c"}), {.options = true}},
      {Make(kChoice, u"t", u"ac", {u"a", u"b"}), {.options = true}},
      {Make(kFillIn, u"t", u"<@> "), {.key = true}},
      {Make(kEssay, u"t"), {.key = true}},
      {Make(kChoice, u""), {.text = true, .key = true, .options = true}}};
  for (const auto& [question, missing] : rows)
    EXPECT_EQ(OverviewRows({exam, 1, 1, question})[0].missing, missing);

  const auto file = WriteBytes(folder / "file", "x");
  exam.Question(4).attachmentPaths = {file.u16string(), file.u16string()};
  EXPECT_EQ(OverviewRows({exam, 4})[3].files, 2);
  EXPECT_FALSE(OverviewRows({exam, 4})[3].missing.Any());
  exam.pathsWithoutContent.insert(file.u16string());
  EXPECT_TRUE(OverviewRows({exam, 4})[3].missing.files);
}

TEST_F(Overview, ScoresByRanges) {
  exam.scoreMode = ScoreMode::Custom;
  exam.scoreFrom = {1, 3};
  exam.scoreTo = {2, 4};
  exam.scoreValue = {1.5F, 4};
  const std::vector<OverviewRow> rows = OverviewRows({exam, 5}, {.withoutKey = false});
  const std::array<float, 5> scores{1.5F, 1.5F, 4, 4, 0};
  for (std::size_t i = 0; i < rows.size(); ++i) EXPECT_EQ(rows[i].score, scores[i]);
  EXPECT_EQ(OverviewRows({exam, 5}, {.kind = QuestionKind::Oral})[0].score, 4) << "a filter changes no score";
}

TEST_F(Overview, Filters) {
  exam.Question(2).answerText.clear();
  exam.Question(3).attachmentPaths[0] = u"/nowhere";
  EXPECT_EQ(Numbers({.text = u"ärGER"}), std::vector{4});
  EXPECT_EQ(Numbers({.text = u"SEA"}), std::vector{1}) << "an option";
  EXPECT_EQ(Numbers({.text = u"lines"}), std::vector{1}) << "below the first line";
  EXPECT_EQ(Numbers({.kind = QuestionKind::Essay}), std::vector{3});
  EXPECT_EQ(Numbers({.withoutKey = true}), std::vector{2});
  EXPECT_EQ(Numbers({.withFiles = true}), std::vector{3});
  EXPECT_EQ(Numbers({.text = u"fill", .withFiles = true}), std::vector<int>{});
}

}  // namespace
}  // namespace quorvantis::test

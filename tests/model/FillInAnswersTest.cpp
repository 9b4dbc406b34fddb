// SPDX-License-Identifier: MIT
#include "model/ExamQuestion.h"
#include "model/FillInAnswers.h"

#include <gtest/gtest.h>

#include <random>

namespace quorvantis::test {
namespace {

TEST(FillInAnswers, AreWhatStandsBetweenSeparators) {
  std::mt19937 random(11);
  for (int i = 0; i < 5'000; ++i) {
    std::vector<std::u16string> answers;
    std::u16string line;
    for (std::size_t count = random() % 5 + 1; answers.size() < count;) {
      if (!answers.empty()) line += kListSeparator;
      constexpr std::u16string_view kAnswers[] = {u"", u"red", u"<@", u"@>", u" ", u"a<b"};
      answers.emplace_back(kAnswers[random() % std::size(kAnswers)]);
      line += answers.back();
    }
    std::vector<std::u16string> found;
    for (const TextSpan& answer : FillInAnswersIn(line)) found.emplace_back(answer.Of(line));
    ASSERT_EQ(found, answers);
    ASSERT_EQ(FillInAnswersJoined(line, kListSeparator), line);
  }
  EXPECT_EQ(FillInAnswersJoined(u"<@>red<@>blue<@>", u" / "), u" / red / blue / ");
}

}  // namespace
}  // namespace quorvantis::test

// SPDX-License-Identifier: MIT
#include "versions/VersionsTest.h"
#include "versions/folder/CopyingReport.h"
#include "versions/folder/VersionExam.h"
#include "versions/plan/QuestionScores.h"
#include "versions/verify/ExamComparison.h"
#include "versions/verify/PinsHold.h"

#include <algorithm>
#include <set>

namespace quorvantis::test {
namespace {

class VersionPlans : public VersionsTest {
 protected:
  PlanOutcome Plan(const VersionRequest& request) { return PlanVersions(exam, exam.questionCount, request); }

  void AddPlainChoices(int count, std::size_t options) {
    for (int i = 0; i < count; ++i) {
      std::vector<std::u16string> texts;
      for (std::size_t option = 0; option < options; ++option)
        texts.push_back(u"choice " + FormatInteger(static_cast<std::int64_t>(option)));
      AddChoice(u"What?", texts, {static_cast<char16_t>(u'a' + i % static_cast<int>(options))});
    }
  }

  /// What must be true of the version of any exam.
  void ExpectRight(const VersionPlan& plan, const PlannedVersion& version) {
    ASSERT_TRUE(IsComplete(version, exam.questionCount));
    EXPECT_EQ(QuestionNotKept(plan, version), 0);
    FrameSetExam made = VersionOf(exam, version);
    EXPECT_EQ(CompareWithSource(exam, version, made), std::vector<std::u16string>());
    std::multiset<std::u16string> texts;
    for (int number = 1; number <= exam.questionCount; ++number) {
      for (const std::u16string& text : exam.Question(number).options) texts.insert(text);
      texts.insert(exam.Question(number).text);
    }
    for (int number = 1; number <= exam.questionCount; ++number) {
      for (const std::u16string& text : made.Question(number).options) texts.erase(texts.find(text));
      texts.erase(texts.find(made.Question(number).text));
    }
    EXPECT_TRUE(texts.empty());
  }
};

TEST_F(VersionPlans, HoldWhatTheyPromiseForAnyExam) {
  SeededRandom random(1);
  constexpr QuestionMoves kMoves[] = {QuestionMoves::None, QuestionMoves::Neighbours,
                                      QuestionMoves::WithinKind, QuestionMoves::WithinScore,
                                      QuestionMoves::All};
  for (int round = 0; round < 300; ++round) {
    SCOPED_TRACE(round);
    FillAtRandom(random, 40);
    VersionRequest request = Request(1 + random.Below(4), random.Next(), kMoves[random.Below(5)]);
    request.pins.questions.insert(1 + static_cast<int>(random.Below(40)));
    request.pins.options.insert({1 + static_cast<int>(random.Below(40)), random.Below(kOptionCount)});
    const PlanOutcome outcome = Plan(request);
    if (outcome.problem == PlanOutcome::Problem::TooFewOrders) {
      EXPECT_LT(outcome.possible, request.names.size());
      continue;
    }
    ASSERT_TRUE(outcome.IsDone());
    EXPECT_EQ(Plan(request).plan, outcome.plan) << "the seed decides";
    for (const PlannedVersion& version : outcome.plan.versions) ExpectRight(outcome.plan, version);
  }
}

TEST_F(VersionPlans, KeepNeighboursFromCopying) {
  for (const int count : {8, 20, 100}) {
    for (const std::size_t versions : {2U, 4U, 8U}) {
      exam.Reset();
      AddPlainChoices(count, 4);
      for (std::uint64_t seed = 0; seed < 5; ++seed) {
        const PlanOutcome outcome = Plan(Request(versions, seed));
        ASSERT_TRUE(outcome.IsDone());
        for (const CopyingPair& pair : CopyingReport(exam, outcome.plan)) {
          EXPECT_LE(pair.sameQuestions, outcome.chance.TolerableQuestions()) << count << " " << versions;
          EXPECT_LE(pair.sameKeys, outcome.chance.TolerableKeys()) << count << " " << versions;
          if (count > 8) {
            EXPECT_GE(pair.sameKeys, outcome.chance.FewestKeys()) << count << " " << versions;
          }
        }
      }
    }
  }
}

TEST_F(VersionPlans, PreferNoPlaceAndNoLetter) {
  AddPlainChoices(5, 4);
  constexpr int kSeeds = 2000;
  for (const std::size_t version : {0U, 2U}) {
    std::array<double, 5> places{};
    std::array<double, 4> letters{};
    for (std::uint64_t seed = 0; seed < kSeeds; ++seed) {
      const PlannedVersion planned = Plan(Request(3, seed)).plan.versions.at(version);
      const auto place = std::ranges::find(planned.questions, 1) - planned.questions.begin();
      const OptionOrder& order = planned.options[static_cast<std::size_t>(place)];
      ++places[static_cast<std::size_t>(place)];
      ++letters[static_cast<std::size_t>(std::ranges::find(order, std::size_t{0}) - order.begin())];
    }
    const auto chiSquare = [](const auto& counts) {
      const double mean = kSeeds / static_cast<double>(counts.size());
      double sum = 0;
      for (const double count : counts) sum += (count - mean) * (count - mean) / mean;
      return sum;
    };
    EXPECT_LT(chiSquare(places), 18.5);  // one in a thousand with 4 degrees of freedom
    EXPECT_LT(chiSquare(letters), 16.3);
  }
}

TEST_F(VersionPlans, PinWhatMeansNothingElsewhere) {
  struct Row {
    std::vector<std::u16string> options;
    std::u16string key;
    std::optional<std::size_t> option;
    PinReason reason;
  };
  const std::vector<Row> rows{
      {{u"red", u"blue", u"all of the above"}, u"c", 2, PinReason::SpeaksOfOthers},
      {{u"红", u"蓝", u"以上都对"}, u"c", 2, PinReason::SpeaksOfOthers},
      {{u"red", u"blue", u"both A and B"}, u"c", std::nullopt, PinReason::NamesLetters},
      {{u"A", u"B", u"C"}, u"a", std::nullopt, PinReason::OwnLetters},
      {{u"red"}, u"a", std::nullopt, PinReason::TooFew},
      {{u"red", u"blue"}, u"ba", std::nullopt, PinReason::OddKey},
      {{u"red", u"blue"}, u"aa", std::nullopt, PinReason::OddKey},
  };
  for (const Row& row : rows) {
    exam.Reset();
    AddChoice(u"Which?", row.options, row.key);
    const PinnedParts pinned(exam, 1, {});
    EXPECT_EQ(pinned.Parts(), (std::vector<PinnedPart>{{1, row.option, row.reason, 0}}));
    EXPECT_EQ(pinned.MovableOptions(1).size(), row.option ? 2U : 0U);
  }
}

TEST_F(VersionPlans, KeepWhatBelongsTogether) {
  for (int i = 0; i < 12; ++i) AddPlainChoices(1, 4);
  exam.Question(5).text = u"In the picture above, what else?";
  exam.Question(6).text = u"In the picture above, and what else?";
  exam.Question(10).text = u"Look at question 2 again.";
  exam.Question(12).kind = QuestionKind::Essay;
  exam.Question(12).text = u"The picture above: why?";
  std::set<std::size_t> places;
  for (std::uint64_t seed = 0; seed < 100; ++seed) {
    const PlannedVersion version = Plan(Request(1, seed)).plan.versions.front();
    EXPECT_EQ(version.questions[1], 2) << "it is named";
    EXPECT_EQ(version.questions[9], 10) << "it names another";
    EXPECT_EQ(version.questions[10], 11) << "an essay that cannot move follows it";
    const auto place =
        static_cast<std::size_t>(std::ranges::find(version.questions, 4) - version.questions.begin());
    EXPECT_EQ(version.questions.at(place + 1), 5);
    EXPECT_EQ(version.questions.at(place + 2), 6);
    places.insert(place);
  }
  EXPECT_EQ(places, (std::set<std::size_t>{2, 3, 4, 5, 6})) << "they move together";
}

TEST_F(VersionPlans, TellHowManyVersionsThereAre) {
  EXPECT_EQ(PlanVersions(exam, 0, Request(1, 1)).problem, PlanOutcome::Problem::NoQuestions);
  AddPlainChoices(1, 3);
  EXPECT_TRUE(Plan(Request(6, 1)).IsDone());
  const PlanOutcome outcome = Plan(Request(7, 1));
  EXPECT_EQ(outcome.problem, PlanOutcome::Problem::TooFewOrders);
  EXPECT_EQ(outcome.possible, 6U);
  VersionRequest still = Request(2, 1, QuestionMoves::None);
  still.movesOptions = false;
  EXPECT_EQ(Plan(still).possible, 1U);
}

TEST_F(VersionPlans, GiveEachQuestionItsScore) {
  AddPlainChoices(30, 2);
  exam.scoreMode = ScoreMode::Custom;
  exam.scoreFrom = {1, 2, 4};
  exam.scoreTo = {1, 3, 30};
  exam.scoreValue = {5, 2, 1};
  const PlanOutcome mixed = Plan(Request(2, 3, QuestionMoves::All));
  ASSERT_TRUE(mixed.IsDone());
  EXPECT_EQ(mixed.plan.moves, QuestionMoves::All) << "seven ranges at most";
  for (int i = 0; i < 30; ++i)
    exam.Question(i + 1).kind = i % 2 == 0 ? QuestionKind::Essay : QuestionKind::Choice;
  exam.scoreTo = {1, 15, 30};
  exam.scoreFrom = {1, 2, 16};
  const PlanOutcome kept = Plan(Request(2, 3, QuestionMoves::All));
  ASSERT_TRUE(kept.IsDone());
  EXPECT_EQ(kept.plan.moves, QuestionMoves::WithinScore) << "no ten ranges would do";
}

}  // namespace
}  // namespace quorvantis::test

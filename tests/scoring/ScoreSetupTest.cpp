// SPDX-License-Identifier: MIT
#include "scoring/ScoreSegments.h"
#include "scoring/ScoreSetup.h"
#include "scoring/SetupSteps.h"
#include "text/Utf.h"

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

/// Adjacent ranges with these ends; range k has the score k.
ScoreDistribution Consecutive(const std::vector<int>& ends, ScoreMode mode = ScoreMode::Custom) {
  ScoreDistribution ranges;
  int start = 1;
  for (std::size_t i = 0; i < ends.size(); ++i) {
    ranges.scoreFrom[i] = start;
    ranges.scoreTo[i] = ends[i];
    ranges.scoreValue[i] = static_cast<float>(i + 1);
    start = ends[i] + 1;
  }
  ranges.scoreMode = mode;
  return ranges;
}

ScoreDistribution NewExam(ScoreMode mode = ScoreMode::Custom) {
  return Consecutive({10, 20, 30, 40, 50, 60, 70, 80, 90, 100}, mode);
}

ScoreSetup Opened(int questionCount, const ScoreDistribution& distribution) {
  ScoreSetup setup;
  setup.SetQuestionCount(questionCount);
  setup.SetDistribution(distribution);
  return setup;
}

ScoreDistribution Accepted(ScoreSetup& setup) {
  setup.ReadBack();
  ScoreDistribution result;
  setup.GetDistribution(result);
  return result;
}

/// The rows that show anything, as "from-to*score"; a row after an empty one is preceded by its number.
std::string Rows(const ScoreSetup& setup) {
  std::string rows;
  std::size_t expected = 0;
  for (std::size_t i = 0; i < kScoreRanges; ++i) {
    const auto& [from, to, score] =
        std::tie(setup.Fields().from[i], setup.Fields().to[i], setup.Fields().score[i]);
    if (from.text.empty() && to.text.empty() && score.text.empty()) continue;
    if (!rows.empty()) rows += ' ';
    if (i != expected) rows += std::to_string(i + 1) + ":";
    rows +=
        (i == 0 ? "1" : Utf16ToUtf8(from.text)) + "-" + Utf16ToUtf8(to.text) + "*" + Utf16ToUtf8(score.text);
    expected = i + 1;
  }
  return rows;
}

TEST(ScoreSetup, OpensWithTheRangesWithinTheExam) {
  const auto check = [](int count, const ScoreDistribution& given, const std::string& rows) {
    EXPECT_EQ(Rows(Opened(count, given)), rows) << count;
  };
  check(25, NewExam(), "1-10*1.00 11-25*2.00");
  check(20, NewExam(), "1-10*1.00 11-20*2.00");
  check(5, NewExam(ScoreMode::Same), "1-5*0.00");
  check(0, NewExam(), "");
  check(0, NewExam(ScoreMode::Same), "");
  check(5, NewExam(), "10:5-0*0.00");  // the count becomes the start of the last range
  check(12, Consecutive({4, 8, 0, 12}), "1-4*1.00 5-12*2.00");
  ScoreDistribution hidden = Consecutive({10, 20});
  hidden.scoreFrom[1] = 0;  // a range without a start is hidden, whatever its end
  check(20, hidden, "1-10*1.00");
}

TEST(ScoreSetup, AnEndCutsItsNeighbourAnew) {
  using enum TypedEnd;
  const auto check = [](const std::vector<int>& ends, int range, const char16_t* text, TypedEnd outcome,
                        const std::string& rows) {
    ScoreSetup setup = Opened(25, Consecutive(ends));
    EXPECT_EQ(setup.TypeEnd(range, text), outcome);
    EXPECT_EQ(Rows(setup), rows) << range << "=" << Utf16ToUtf8(text);
  };
  check({10, 25}, 1, u"15", Moved, "1-15*1.00 16-25*2.00");
  check({10, 20, 25}, 1, u"25", Moved, "1-25*1.00 3:21-25*3.00");  // only the next range is removed
  check({10, 20, 25}, 1, u"20", Clamped, "1-19*1.00 20-20*2.00 21-25*3.00");
  check({10, 20, 25}, 1, u"22", Clamped, "1-19*1.00 20-20*2.00 21-25*3.00");
  check({25}, 1, u"7", Moved, "1-7*1.00 8-25*0.00");
  for (const char16_t* refused : {u"30", u"0", u"-3", u"", u"x", u"99999999999"}) {
    check({10, 25}, 1, refused, Reverted, "1-10*1.00 11-25*2.00");
  }
  check({10, 25}, 1, u" 5th", Moved, "1-5*1.00 6-25*2.00");
  check({10, 25}, 1, u"010", Same, "1-010*1.00 11-25*2.00");
  check({10, 20, 25}, 2, u"8", Reverted, "1-10*1.00 11-20*2.00 21-25*3.00");
  check({10, 20, 25}, 2, u"15", Moved, "1-10*1.00 11-15*2.00 16-25*3.00");
  check({10, 20, 25}, 2, u"25", Moved, "1-10*1.00 11-25*2.00");
  check({5, 10, 20, 25}, 2, u"20", Reverted, "1-5*1.00 6-10*2.00 11-20*3.00 21-25*4.00");
  check({1, 2, 3, 4, 5, 6, 7, 8, 25}, 9, u"20", Moved,
        "1-1*1.00 2-2*2.00 3-3*3.00 4-4*4.00 5-5*5.00 6-6*6.00 7-7*7.00 8-8*8.00 9-20*9.00 21-25*0.00");
}

TEST(ScoreSetup, AnEndWithinTheRangeBeforeIsLeftAsTyped) {
  ScoreDistribution overlapping = Consecutive({10, 20, 25});
  overlapping.scoreFrom[1] = 5;
  ScoreSetup setup = Opened(25, overlapping);
  EXPECT_EQ(setup.TypeEnd(2, u"10"), TypedEnd::Ignored);
  EXPECT_EQ(Rows(setup), "1-10*1.00 5-10*2.00 21-25*3.00");
  EXPECT_EQ(Accepted(setup).scoreTo[1], 10);
}

TEST(ScoreSetup, OnlyFieldsOfUsedRangesAreOpen) {
  const auto check = [](ScoreSetup& setup, int range, bool end, bool score) {
    EXPECT_EQ(setup.TypeEnd(range, u"1") != TypedEnd::NotEditable, end) << range;
    EXPECT_EQ(setup.TypeScore(range, u"3"), score) << range;
  };
  ScoreSetup full = Opened(100, NewExam());
  check(full, 9, true, true);
  check(full, 10, false, true);
  ScoreSetup one = Opened(25, NewExam(ScoreMode::Same));
  check(one, 1, false, false);
  one.ClickRadio(1);
  check(one, 2, false, false);
  check(one, 1, true, true);
  ScoreSetup unused = Opened(5, NewExam());
  check(unused, 1, false, false);
  check(unused, 10, false, true);
}

TEST(ScoreSetup, HandsBackWhatTheFieldsHold) {
  ScoreDistribution given = Consecutive({10, 25});
  given.scoreFrom[0] = 3;
  ScoreSetup setup = Opened(25, given);
  setup.TypeScore(1, u"0.1");
  setup.TypeScore(2, u"7e2 points");
  ScoreDistribution result = Accepted(setup);
  EXPECT_EQ(result.scoreFrom, (std::array{1, 11, 0, 0, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(result.scoreTo, (std::array{10, 25, 0, 0, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(result.scoreValue[0], 0.1F);
  EXPECT_EQ(result.scoreValue[1], 700.0F);
  EXPECT_EQ(result.scoreMode, ScoreMode::Custom);

  ScoreSetup recut = Opened(25, Consecutive({10, 25}));
  recut.TypeScore(1, u"5");
  recut.TypeEnd(1, u"5");  // shows the ranges again, with the old scores
  EXPECT_EQ(Accepted(recut).scoreValue[0], 1.0F);

  ScoreSetup short5 = Opened(5, NewExam());
  result = Accepted(short5);
  EXPECT_EQ(result.scoreFrom[9], 5);
  EXPECT_EQ(result.scoreTo, (std::array<int, kScoreRanges>{}));
}

TEST(ScoreSetup, TheModeIsThatOfTheRadioButtons) {
  const struct {
    ScoreMode given;
    int radio, click;
    std::string rows;
    ScoreMode accepted;
  } rows[] = {{ScoreMode::Same, 0, 0, "1-25*0.00", ScoreMode::Same},
              {ScoreMode::Same, 0, 1, "1-25*0.00", ScoreMode::Custom},  // the ranges of the exam are gone
              {ScoreMode::Custom, 1, 0, "1-10*1.00 11-25*2.00", ScoreMode::Same},
              {static_cast<ScoreMode>(2), 1, 1, "1-25*0.00", ScoreMode::Custom}};
  for (const auto& row : rows) {
    ScoreSetup setup = Opened(25, NewExam(row.given));
    EXPECT_EQ(setup.Fields().radio, row.radio);
    setup.ClickRadio(row.click);
    EXPECT_EQ(Rows(setup), row.rows);
    EXPECT_EQ(Accepted(setup).scoreMode, row.accepted);
  }
}

TEST(ScoreFields, FiltersLetTypedCharactersThrough) {
  const auto taken = [](bool (*takes)(char16_t, std::u16string_view), std::u16string_view content) {
    std::u16string passed;
    for (const char16_t c : {u'\x01', u'\b', u' ', u'+', u',', u'-', u'.', u'0', u'9', u'e', u'\uFF11'})
      if (takes(c, content)) passed += c;
    return passed;
  };
  EXPECT_EQ(taken(ScoreFieldTakes, u"12"), u"\b.09");
  EXPECT_EQ(taken(ScoreFieldTakes, u"1.2"), u"\b09");
  EXPECT_EQ(taken(DigitFieldTakes, u""), u"09");
}

TEST(ScoreSegments, CoverTheExamWithoutGaps) {
  using Segments = std::vector<ScoreSegment>;
  EXPECT_EQ(SegmentsOf(Consecutive({10, 25}), 25), (Segments{{1, 1, 10, 1}, {2, 11, 25, 2}}));
  ScoreDistribution odd = Consecutive({4, 2, 9});
  odd.scoreFrom[1] = 3;
  odd.scoreTo[1] = 6;
  odd.scoreFrom[2] = 8;
  const Segments segments = SegmentsOf(odd, 12);
  EXPECT_EQ(segments, (Segments{{1, 1, 4, 1}, {2, 5, 6, 2}, {0, 7, 7, 0}, {3, 8, 9, 3}, {0, 10, 12, 0}}));
  EXPECT_EQ(TotalScore(segments), 4 + 4 + 6);
  EXPECT_EQ(SegmentsOf(odd, 0), Segments{});
}

TEST(SetupSteps, TakeBackAndRepeatTyping) {
  ScoreSetup setup = Opened(10, Consecutive({3, 10}));
  SetupSteps steps(setup);
  std::vector<ScoreFields> states{setup.Fields()};
  const auto look = [&] {
    steps.Look();
    states.push_back(setup.Fields());
  };
  setup.TypeEnd(1, u"5");
  look();
  setup.TypeScore(2, u"2.5");
  look();
  setup.ClickRadio(0);
  look();
  for (std::size_t n = states.size() - 1; n > 0; --n) {
    EXPECT_TRUE(steps.Undo());
    EXPECT_EQ(setup.Fields(), states[n - 1]);
  }
  EXPECT_FALSE(steps.Undo());
  for (std::size_t n = 1; n < states.size(); ++n) {
    EXPECT_TRUE(steps.Redo());
    EXPECT_EQ(setup.Fields(), states[n]);
  }
  EXPECT_FALSE(steps.Redo());
}

}  // namespace
}  // namespace quorvantis::test

// SPDX-License-Identifier: MIT
#include "check/ScoreRules.h"

#include "scoring/ScoreSegments.h"
#include "text/NumberText.h"

#include <algorithm>
#include <cmath>

namespace quorvantis {
namespace {

struct NumberedRange {
  int first = 0;
  int last = 0;
};

/// The questions of range `index` that there are; the last is before the first if there are none.
NumberedRange RangeAt(const CheckedExam& exam, std::size_t index) {
  if (exam.exam.scoreFrom[index] < 1) return {1, 0};
  return {exam.exam.scoreFrom[index], std::min(exam.exam.scoreTo[index], exam.LastQuestion())};
}

std::vector<ScoreSegment> SegmentsOf(const CheckedExam& exam) {
  if (!HasScoreRanges(exam.exam.scoreMode)) return {};
  return SegmentsOf(DistributionOf(exam.exam), exam.LastQuestion());
}

/// "3" or "5–9".
std::u16string Numbers(int first, int last) {
  return first == last ? FormatInteger(first) : FormatInteger(first) + u'\u2013' + FormatInteger(last);
}

TextPlace RangePlace(int range) {
  return {0, ExamFieldName::RangeStart, static_cast<unsigned>(std::max(range - 1, 0))};
}

}  // namespace

void ScoreRangesOverlap::Check(const CheckedExam& exam, FindingList& findings) const {
  if (!HasScoreRanges(exam.exam.scoreMode)) return;
  for (std::size_t later = 1; later < kScoreRanges; ++later) {
    for (std::size_t earlier = 0; earlier < later; ++earlier) {
      const NumberedRange a = RangeAt(exam, earlier);
      const NumberedRange b = RangeAt(exam, later);
      const int first = std::max(a.first, b.first);
      const int last = std::min(a.last, b.last);
      if (first > last) continue;
      findings.Add(RangePlace(static_cast<int>(later) + 1),
                   {FormatInteger(static_cast<std::int64_t>(earlier) + 1),
                    FormatInteger(static_cast<std::int64_t>(later) + 1), Numbers(first, last)});
    }
  }
}

void QuestionsWithoutScore::Check(const CheckedExam& exam, FindingList& findings) const {
  for (const ScoreSegment& segment : SegmentsOf(exam)) {
    if (segment.range == 0) findings.Add(RangePlace(0), {Numbers(segment.first, segment.last)});
  }
}

void ScoreOfZero::Check(const CheckedExam& exam, FindingList& findings) const {
  for (const ScoreSegment& segment : SegmentsOf(exam)) {
    if (segment.range == 0 || segment.score > 0) continue;
    findings.Add(RangePlace(segment.range),
                 {Numbers(segment.first, segment.last), FormatScore(static_cast<double>(segment.score))});
  }
}

void OddScoreSum::Check(const CheckedExam& exam, FindingList& findings) const {
  constexpr double kUsual = 100;
  constexpr double kBeside = 5;
  constexpr double kSame = 0.005;  // scores have two decimals
  const std::optional<double> sum = SumOfScores(exam.exam);
  if (!sum || !std::isfinite(*sum)) return;
  const bool isWhole = std::abs(*sum - std::round(*sum)) < kSame;
  const double away = std::abs(*sum - kUsual);
  if (!isWhole || (away > kSame && away <= kBeside)) findings.Add(RangePlace(0), {FormatScore(*sum)});
}

std::optional<double> SumOfScores(const FrameSetExam& exam) {
  if (!HasScoreRanges(exam.scoreMode)) return std::nullopt;
  return TotalScore(SegmentsOf(DistributionOf(exam), exam.LastCountedQuestion()));
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "versions/plan/VersionPlanner.h"

#include "text/SeededRandom.h"
#include "versions/plan/ChosenOptions.h"
#include "versions/plan/ChosenQuestions.h"
#include "versions/plan/QuestionScores.h"
#include "versions/plan/QuestionUnits.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace quorvantis {
namespace {

/// The same, but without another score at any place.
QuestionMoves KeepingScores(QuestionMoves moves) {
  switch (moves) {
    case QuestionMoves::WithinKind:
      return QuestionMoves::WithinKindAndScore;
    case QuestionMoves::All:
      return QuestionMoves::WithinScore;
    case QuestionMoves::None:
    case QuestionMoves::Neighbours:
    case QuestionMoves::WithinScore:
    case QuestionMoves::WithinKindAndScore:
      break;
  }
  return moves;
}

/// Plans with questions that move in one way.
class Planning {
 public:
  Planning(const ExamPaper& exam, int questionCount, const VersionRequest& request, QuestionMoves moves)
      : request_(request),
        moves_(moves),
        scores_(ScoresOf(exam, questionCount)),
        pinned_(exam, questionCount, request.pins),
        units_(exam, scores_, moves, pinned_),
        chance_(ChanceOfCopying(exam, pinned_, units_, request.movesOptions)),
        random_(request.seed),
        questions_(units_, scores_, chance_.TolerableQuestions()),
        options_(exam, pinned_, chance_.FewestKeys(), chance_.TolerableKeys()) {}

  /// Nothing if ten ranges cannot give the scores.
  std::optional<PlanOutcome> Plan() {
    PlanOutcome outcome;
    outcome.chance = chance_;
    outcome.plan.moves = moves_;
    for (const std::u16string& name : request_.names) {
      std::optional<PlannedVersion> version = NextVersion(outcome.plan.versions);
      if (!version) return std::nullopt;
      if (version->questions.empty()) {
        outcome.problem = PlanOutcome::Problem::TooFewOrders;
        outcome.possible = outcome.plan.versions.size();
        return outcome;
      }
      questions_.Keep(version->questions);
      options_.Keep(version->questions, version->options);
      version->name = name;
      outcome.plan.versions.push_back(*std::move(version));
    }
    outcome.plan.pinned = Pinned();
    return outcome;
  }

 private:
  /// A version unlike all others; an empty one if no such is found. Nothing if ten ranges cannot give the
  /// scores.
  std::optional<PlannedVersion> NextVersion(const std::vector<PlannedVersion>& others) {
    constexpr int kTries = 1000;
    constexpr int kGoodTries = 20;
    for (int i = 0; i < kTries; ++i) {
      const bool isGood = i < kGoodTries;
      const auto questions = isGood ? questions_.Choose(random_) : questions_.Any(random_);
      if (!questions) return std::nullopt;
      PlannedVersion version{{}, *questions, OptionsOf(*questions, isGood)};
      const auto isSame = [&version](const PlannedVersion& other) { return version.IsSamePaper(other); };
      if (std::ranges::none_of(others, isSame)) return version;
    }
    return PlannedVersion();
  }

  std::vector<OptionOrder> OptionsOf(const std::vector<int>& questions, bool isGood) {
    if (!request_.movesOptions) return std::vector<OptionOrder>(questions.size(), kSourceOrder);
    return isGood ? options_.Choose(questions, random_) : options_.Any(questions, random_);
  }

  /// Where nothing moves at all, nothing needs a reason to stay.
  std::vector<PinnedPart> Pinned() const {
    std::vector<PinnedPart> parts;
    for (const PinnedPart& part : pinned_.Parts()) {
      const bool couldMove =
          IsOfQuestion(part.reason) ? moves_ != QuestionMoves::None : request_.movesOptions;
      if (couldMove) parts.push_back(part);
    }
    return parts;
  }

  const VersionRequest& request_;
  QuestionMoves moves_;
  QuestionScores scores_;
  PinnedParts pinned_;
  QuestionUnits units_;
  CopyingChance chance_;
  SeededRandom random_;
  ChosenQuestions questions_;
  ChosenOptions options_;
};

}  // namespace

PlanOutcome PlanVersions(const ExamPaper& exam, int questionCount, const VersionRequest& request) {
  if (questionCount == 0) return {PlanOutcome::Problem::NoQuestions};
  if (auto outcome = Planning(exam, questionCount, request, request.moves).Plan()) return *std::move(outcome);
  auto outcome = Planning(exam, questionCount, request, KeepingScores(request.moves)).Plan();
  return outcome ? *std::move(outcome) : PlanOutcome{PlanOutcome::Problem::TooFewOrders};
}

}  // namespace quorvantis

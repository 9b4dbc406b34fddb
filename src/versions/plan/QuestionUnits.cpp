// SPDX-License-Identifier: MIT
#include "versions/plan/QuestionUnits.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <numeric>
#include <tuple>
#include <utility>

namespace quorvantis {
namespace {

/// What questions must have in common to change places.
using Commonness = std::tuple<int, bool, float>;

Commonness WhatMustAgree(const ExamQuestion& question, std::optional<float> score, QuestionMoves moves) {
  const bool byBoth = moves == QuestionMoves::Neighbours || moves == QuestionMoves::WithinKindAndScore;
  const bool byKind = byBoth || moves == QuestionMoves::WithinKind;
  const bool byScore = byBoth || moves == QuestionMoves::WithinScore;
  return {byKind ? static_cast<int>(question.kind) : 0, byScore && score.has_value(),
          byScore ? score.value_or(0) : 0};
}

/// The group of each question, by number from index 1 on.
std::vector<int> GroupsOf(const ExamPaper& exam, const QuestionScores& scores, QuestionMoves moves) {
  std::map<Commonness, int> known;
  std::vector<int> groups(scores.size());
  int newest = 0;
  Commonness last;
  for (std::size_t number = 1; number < scores.size(); ++number) {
    const Commonness common = WhatMustAgree(exam.Question(static_cast<int>(number)), scores[number], moves);
    const bool begins = number == 1 || common != last;
    if (moves == QuestionMoves::Neighbours) {
      newest += begins ? 1 : 0;
      groups[number] = newest;
    } else {
      groups[number] = known.try_emplace(common, static_cast<int>(known.size()) + 1).first->second;
    }
    last = common;
  }
  return groups;
}

}  // namespace

QuestionUnits::QuestionUnits(const ExamPaper& exam, const QuestionScores& scores, QuestionMoves moves,
                             PinnedParts& pinned)
    : count_(pinned.Count()) {
  if (moves != QuestionMoves::None) JoinUnits(GroupsOf(exam, scores, moves), pinned);
  FindExchanges();
  FindStretches();
  ListCandidates();
}

void QuestionUnits::JoinUnits(const std::vector<int>& groups, PinnedParts& pinned) {
  const auto group = [&groups](int number) { return groups[static_cast<std::size_t>(number)]; };
  for (int first = 1, end = 2; first <= count_; first = end) {
    end = first + 1;
    while (end <= count_ && pinned.FollowsOn(end)) ++end;
    int obstacle = 0;
    for (int number = first; number < end && obstacle == 0; ++number) {
      if (pinned.Stays(number) || group(number) != group(first)) obstacle = number;
    }
    if (obstacle == 0) {
      units_.push_back({first, end - first, group(first)});
      continue;
    }
    for (int number = first; number < end; ++number) {
      const int other = number == obstacle ? first : obstacle;
      if (!pinned.Stays(number)) pinned.Pin({number, {}, PinReason::CannotMoveAlong, other});
    }
  }
}

void QuestionUnits::FindExchanges() {
  std::map<std::pair<int, int>, std::vector<std::size_t>> alike;
  for (std::size_t i = 0; i < units_.size(); ++i) alike[{units_[i].group, units_[i].length}].push_back(i);
  for (auto& [what, units] : alike) exchanges_.push_back(std::move(units));
}

void QuestionUnits::FindStretches() {
  for (std::size_t first = 0, end = 1; first < units_.size(); first = end) {
    const auto goesOn = [this](std::size_t i) {
      const Unit& before = units_[i - 1];
      return units_[i].group == before.group && units_[i].first == before.first + before.length;
    };
    for (end = first + 1; end < units_.size() && goesOn(end);) ++end;
    std::vector<std::size_t> stretch(end - first);
    std::iota(stretch.begin(), stretch.end(), first);
    const auto differs = [&](std::size_t i) { return units_[i].length != units_[first].length; };
    if (std::ranges::any_of(stretch, differs)) stretches_.push_back(std::move(stretch));
  }
}

void QuestionUnits::ListCandidates() {
  candidates_.resize(static_cast<std::size_t>(count_));
  for (const auto& alike : exchanges_) {
    for (int offset = 0; offset < units_[alike.front()].length; ++offset) {
      std::vector<int> questions;
      questions.reserve(alike.size());
      for (const std::size_t unit : alike) questions.push_back(units_[unit].first + offset);
      for (const int question : questions) candidates_[static_cast<std::size_t>(question) - 1] = questions;
    }
  }
  SampleStretches();
  for (std::size_t place = 0; place < candidates_.size(); ++place) {
    if (candidates_[place].empty()) candidates_[place].push_back(static_cast<int>(place) + 1);
  }
}

/// Where units of different lengths change places, the chances are counted rather than worked out.
void QuestionUnits::SampleStretches() {
  if (stretches_.empty()) return;
  constexpr int kSamples = 200;
  std::vector<std::size_t> places;
  for (const auto& stretch : stretches_) {
    for (const std::size_t unit : stretch) {
      for (int offset = 0; offset < units_[unit].length; ++offset)
        places.push_back(static_cast<std::size_t>(units_[unit].first + offset) - 1);
    }
  }
  for (const std::size_t place : places) candidates_[place].clear();
  SeededRandom random(0);
  for (int i = 0; i < kSamples; ++i) {
    const std::vector<int> order = RandomOrder(random);
    for (const std::size_t place : places) candidates_[place].push_back(order[place]);
  }
}

std::vector<int> QuestionUnits::RandomOrder(SeededRandom& random) const {
  std::vector<std::size_t> sources(units_.size());  // the unit that comes to the place of each unit
  for (const auto& alike : exchanges_) {
    std::vector<std::size_t> shuffled = alike;
    random.Shuffle(shuffled);
    for (std::size_t i = 0; i < alike.size(); ++i) sources[alike[i]] = shuffled[i];
  }
  for (const auto& stretch : stretches_) {
    std::vector<std::size_t> shuffled;
    shuffled.reserve(stretch.size());
    for (const std::size_t unit : stretch) shuffled.push_back(sources[unit]);
    random.Shuffle(shuffled);
    for (std::size_t i = 0; i < stretch.size(); ++i) sources[stretch[i]] = shuffled[i];
  }
  std::vector<int> order(static_cast<std::size_t>(count_));
  std::iota(order.begin(), order.end(), 1);
  int place = 0;
  for (std::size_t i = 0; i < units_.size(); ++i) {
    // Units of a stretch fill it in any order; those that stay are passed over.
    const bool begins = i == 0 || units_[i].first != units_[i - 1].first + units_[i - 1].length;
    if (begins || units_[i].group != units_[i - 1].group) place = units_[i].first;
    const Unit& source = units_[sources[i]];
    for (int offset = 0; offset < source.length; ++offset)
      order[static_cast<std::size_t>(place++) - 1] = source.first + offset;
  }
  return order;
}

}  // namespace quorvantis

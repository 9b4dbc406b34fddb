// SPDX-License-Identifier: MIT
#include "versions/plan/CopyingChance.h"

#include "model/AnswerLetters.h"
#include "model/QuestionKinds.h"

#include <array>
#include <bit>
#include <map>
#include <vector>

namespace quorvantis {
namespace {

constexpr std::size_t kKeys = std::size_t{1} << kOptionCount;

/// The probability of each key, by its mask.
using KeyChances = std::array<double, kKeys>;

/// The bits of a mask that stands for all options in `options`.
unsigned MaskOf(const std::vector<std::size_t>& options) {
  unsigned mask = 0;
  for (const std::size_t option : options) mask |= static_cast<unsigned>(AnswerBoxWeight(option));
  return mask;
}

/// The part of the key within the options that move is each selection of as many of them with the same
/// probability.
KeyChances ChancesOf(const ExamQuestion& question, const std::vector<std::size_t>& movable) {
  KeyChances chances{};
  const auto key = static_cast<unsigned>(KeyAfterMoving(question, kSourceOrder));
  if (key == 0) return chances;
  const unsigned moving = MaskOf(movable);
  const auto fits = [&](unsigned mask) {
    return (mask & ~moving) == (key & ~moving) && std::popcount(mask) == std::popcount(key);
  };
  int count = 0;
  for (unsigned mask = 0; mask < kKeys; ++mask) count += fits(mask) ? 1 : 0;
  for (unsigned mask = 0; mask < kKeys; ++mask) chances[mask] = fits(mask) ? 1.0 / count : 0;
  return chances;
}

double ChanceOfSameQuestion(const std::vector<int>& candidates) {
  std::map<int, int> counts;
  for (const int question : candidates) ++counts[question];
  double same = 0;
  for (const auto& [question, count] : counts) same += static_cast<double>(count) * count;
  return same / static_cast<double>(candidates.size() * candidates.size());
}

double ChanceOfSameKey(const std::vector<KeyChances>& chances, const std::vector<int>& candidates) {
  KeyChances mean{};
  for (const int question : candidates) {
    for (std::size_t mask = 0; mask < kKeys; ++mask)
      mean[mask] +=
          chances[static_cast<std::size_t>(question)][mask] / static_cast<double>(candidates.size());
  }
  double same = 0;
  for (const double chance : mean) same += chance * chance;
  return same;
}

}  // namespace

int KeyAfterMoving(const ExamQuestion& question, const OptionOrder& order) {
  constexpr int kEveryBox = static_cast<int>(kKeys) - 1;
  if (!AnswerOf(question.kind).options) return 0;
  if (order == kSourceOrder) return question.answerMask & kEveryBox;
  int key = 0;
  for (std::size_t place = 0; place < kOptionCount; ++place) {
    if ((question.answerMask & AnswerBoxWeight(order[place])) != 0) key |= AnswerBoxWeight(place);
  }
  return key;
}

CopyingChance ChanceOfCopying(const ExamPaper& exam, const PinnedParts& pinned, const QuestionUnits& units,
                              bool movesOptions) {
  CopyingChance chance;
  chance.places = static_cast<std::size_t>(pinned.Count());
  std::vector<KeyChances> keys(chance.places + 1);
  for (int number = 1; number <= pinned.Count(); ++number) {
    const ExamQuestion& question = exam.Question(number);
    const auto& movable = movesOptions ? pinned.MovableOptions(number) : std::vector<std::size_t>();
    keys[static_cast<std::size_t>(number)] = ChancesOf(question, movable);
    chance.keyed += KeyAfterMoving(question, kSourceOrder) != 0 ? 1 : 0;
  }
  for (std::size_t place = 0; place < chance.places; ++place) {
    const std::vector<int>& candidates = units.Candidates(place);
    chance.sameQuestion += ChanceOfSameQuestion(candidates) / static_cast<double>(chance.places);
    if (chance.keyed > 0)
      chance.sameKey += ChanceOfSameKey(keys, candidates) / static_cast<double>(chance.keyed);
  }
  return chance;
}

}  // namespace quorvantis

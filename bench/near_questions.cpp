// SPDX-License-Identifier: MIT
// Finding nearly equal questions among 50,000, compared with an exact join of their sets of shingles.
#include "RatioReporter.h"
#include "bank/near/NearQuestions.h"
#include "likeness/QuestionRelation.h"
#include "text/SeededRandom.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

namespace quorvantis::bench {
namespace {

constexpr std::size_t kQuestions = 50'000;

/// Questions of some words each, of which few are frequent; one of ten is an earlier one with a word changed.
class Questions {
 public:
  Questions() {
    words_.reserve(20'000);
    for (std::size_t i = 0; i < 20'000; ++i) words_.push_back(Word());
    contents_.reserve(kQuestions);
    while (contents_.size() < kQuestions) contents_.push_back(Content());
  }

  const std::vector<QuestionContent>& All() const { return contents_; }

 private:
  std::u16string Word() {
    std::u16string word;
    for (std::size_t i = 2 + random_.Below(9); i > 0; --i)
      word += static_cast<char16_t>(u'a' + random_.Below(26));
    return word;
  }

  std::u16string Prose(std::size_t words) {
    std::u16string text;
    for (; words > 0; --words) text += words_[random_.Below(1 + random_.Below(words_.size()))] + u' ';
    return text;
  }

  QuestionContent Content() {
    if (random_.Below(10) == 0 && !contents_.empty()) {
      QuestionContent changed = contents_[random_.Below(contents_.size())];
      changed.text += Prose(random_.Below(3));
      return changed;
    }
    return {QuestionKind::Choice,
            u"Which of these is true of " + Prose(6 + random_.Below(20)) + u"?",
            {Prose(5), Prose(5), Prose(5), Prose(5)},
            {},
            {}};
  }

  SeededRandom random_{1};
  std::vector<std::u16string> words_;
  std::vector<QuestionContent> contents_;
};

const std::vector<QuestionContent>& AllQuestions() {
  static const Questions questions;
  return questions.All();
}

std::size_t g_ours = 0;
std::size_t g_peers = 0;

/// From the texts on; shingles are made of the texts again for each exact comparison, as for an index on
/// disk.
void Ours(benchmark::State& state) {
  const auto& questions = AllQuestions();
  for (auto _ : state) {
    std::vector<QuestionSketch> sketches;
    sketches.reserve(questions.size());
    for (const QuestionContent& question : questions) sketches.emplace_back(ShinglesOf(question));
    const NearQuestions found =
        FindNearQuestions(sketches, [&](std::size_t place) { return ShinglesOf(questions[place]); });
    std::vector<std::size_t> members(questions.size(), 1);
    g_ours = 0;
    for (const auto& group : found.equal) {
      members[group.front()] = group.size();
      g_ours += group.size() * (group.size() - 1) / 2;
    }
    for (const NearPair& pair : found.pairs) g_ours += members[pair.first] * members[pair.second];
  }
}

/// Whether two sets are alike; gives up as soon as they have too little in common.
bool AreAlike(const std::vector<std::uint64_t>& a, const std::vector<std::uint64_t>& b) {
  const auto all = static_cast<double>(a.size() + b.size());
  const double mostLone = 1 + all * (1 - kAlike) / (1 + kAlike);  // members that only one of them has
  double lone = 0;
  auto inA = a.begin();
  auto inB = b.begin();
  while (inA != a.end() && inB != b.end() && lone <= mostLone) {
    const std::uint64_t ofA = *inA;
    const std::uint64_t ofB = *inB;
    if (ofA != ofB) ++lone;
    if (ofA <= ofB) ++inA;
    if (ofB <= ofA) ++inB;
  }
  lone += static_cast<double>((a.end() - inA) + (b.end() - inB));
  return (all - lone) / 2 >= kAlike * (all + lone) / 2;
}

/// All sets with their rarest members first; sets that are alike have one of the first ones in common.
class ExactJoin {
 public:
  explicit ExactJoin(const std::vector<Shingles>& sets) : sets_(sets) {
    for (const Shingles& set : sets) {
      for (const std::uint64_t shingle : set.Values()) ++counts_[shingle];
    }
  }

  std::size_t CountPairs() {
    std::vector<std::size_t> seen(sets_.size(), sets_.size());
    std::size_t pairs = 0;
    for (std::size_t i = 0; i < sets_.size(); ++i) {
      for (const std::uint64_t shingle : FirstOf(i)) {
        std::vector<std::size_t>& holders = holders_[shingle];
        for (const std::size_t j : holders) {
          if (seen[j] == i) continue;
          seen[j] = i;
          if (AreAlike(sets_[i].Values(), sets_[j].Values())) ++pairs;
        }
        holders.push_back(i);
      }
    }
    return pairs;
  }

 private:
  std::vector<std::uint64_t> FirstOf(std::size_t i) const {
    std::vector<std::uint64_t> set = sets_[i].Values();
    std::sort(set.begin(), set.end(), [this](std::uint64_t a, std::uint64_t b) {
      return std::pair(counts_.at(a), a) < std::pair(counts_.at(b), b);
    });
    const auto shared = static_cast<std::size_t>(kAlike * static_cast<double>(set.size()));
    set.resize(std::min(set.size(), set.size() - shared + 1));
    return set;
  }

  const std::vector<Shingles>& sets_;
  std::unordered_map<std::uint64_t, std::size_t> counts_;
  std::unordered_map<std::uint64_t, std::vector<std::size_t>> holders_;
};

void Peer(benchmark::State& state) {
  const auto& questions = AllQuestions();
  for (auto _ : state) {
    std::vector<Shingles> sets;
    sets.reserve(questions.size());
    for (const QuestionContent& question : questions) sets.push_back(ShinglesOf(question));
    g_peers = ExactJoin(sets).CountPairs();
  }
}

}  // namespace
}  // namespace quorvantis::bench

int main(int argumentCount, char** arguments) {
  using namespace quorvantis::bench;
  AllQuestions();
  benchmark::RegisterBenchmark("near questions", Ours)
      ->Unit(benchmark::kMillisecond)
      ->Iterations(1)
      ->Repetitions(3);
  benchmark::RegisterBenchmark("exact join", Peer)
      ->Unit(benchmark::kMillisecond)
      ->Iterations(1)
      ->Repetitions(3);
  RunComparisons(argumentCount, arguments,
                 {{"nearly equal ones of 50,000 questions / exact join", "near questions", "exact join",
                   10'000.0, Measure::Milliseconds}});
  if (g_ours == g_peers) return EXIT_SUCCESS;
  std::fprintf(stderr, "%zu pairs were found, the exact join has %zu\n", g_ours, g_peers);
  return EXIT_FAILURE;
}

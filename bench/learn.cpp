// SPDX-License-Identifier: MIT
// Working out the rules of papers, compared with one plain reading of the same paper by these rules.
#include "RatioReporter.h"
#include "learn/PaperStudy.h"

#include <benchmark/benchmark.h>

#include <string>

namespace quorvantis::bench {
namespace {

const CancelHook kNeverCancelled;

std::u16string Number(int number) {
  const std::string digits = std::to_string(number);
  return {digits.begin(), digits.end()};
}

/// Questions of about 150 characters.
std::u16string Questions(int count, bool withAnswers) {
  std::u16string text = u"Class 4, spring test\r\r";
  for (int n = 1; n <= count; ++n) {
    text += Number(n) + u". Which of these statements about rain no. " + Number(n * 7) + u" is true?\r";
    text += u"A. Rain falls up.\rB. The sun is cold.\rC. Clouds hold water.\rD. None of these.\r";
    if (withAnswers) text += std::u16string(u"Answer: ") + u"CABD"[n % 4] + u"\r";
    text += u"\r";
  }
  return text;
}

/// The answers stand after each question.
Paper WithAnswers(int questions) {
  return PaperOf(Questions(questions, true));
}

/// The answers stand in a list at the end.
Paper WithKey(int questions) {
  std::u16string text = Questions(questions, false) + u"Answer key\r";
  for (int n = 1; n <= questions; ++n) text += Number(n) + u". " + u"CABD"[n % 4] + u"\r";
  return PaperOf(text);
}

void Learn(benchmark::State& state, Paper (*make)(int), int count) {
  const Paper paper = make(count);
  for (auto _ : state) {
    const StudyOutcome outcome = WorkOutRules(paper, {}, kNeverCancelled);
    if (outcome.reading.paper.questions.size() != static_cast<std::size_t>(count) ||
        outcome.reading.paper.questions.back().letters.empty())
      state.SkipWithError("questions or keys are missing");
  }
}

void Read(benchmark::State& state, Paper (*make)(int), int count) {
  const Paper paper = make(count);
  const ImportSettings rules = LearnRules(paper, {}, {}).rules;
  for (auto _ : state) benchmark::DoNotOptimize(ReadByRules(paper, rules, kNeverCancelled));
}

/// What a window does after each mark.
void LearnMarked(benchmark::State& state, Paper (*make)(int), int count) {
  const Paper paper = make(count);
  const std::size_t option = paper.source.characters.find(u"The sun");
  const std::vector<PaperMark> marks{{{option, option + 16}, PaperRole::Option}};
  for (auto _ : state) benchmark::DoNotOptimize(WorkOutRules(paper, marks, kNeverCancelled));
}

BENCHMARK_CAPTURE(Learn, Answers, WithAnswers, 500)->UseRealTime()->Repetitions(5);
BENCHMARK_CAPTURE(Read, Answers, WithAnswers, 500)->UseRealTime()->Repetitions(5);
BENCHMARK_CAPTURE(Learn, Key, WithKey, 500)->UseRealTime()->Repetitions(5);
BENCHMARK_CAPTURE(Read, Key, WithKey, 500)->UseRealTime()->Repetitions(5);
BENCHMARK_CAPTURE(Learn, LongKey, WithKey, 10'000)->UseRealTime()->Repetitions(3);
BENCHMARK_CAPTURE(Read, LongKey, WithKey, 10'000)->UseRealTime()->Repetitions(3);
BENCHMARK_CAPTURE(LearnMarked, Key, WithKey, 50)->UseRealTime()->Repetitions(9);
BENCHMARK_CAPTURE(Read, ShortKey, WithKey, 50)->UseRealTime()->Repetitions(9);

}  // namespace
}  // namespace quorvantis::bench

int main(int argumentCount, char** arguments) {
  using quorvantis::bench::Measure;
  quorvantis::bench::RunComparisons(
      argumentCount, arguments,
      {{"rules of 500, answers after each / read it", "Learn/Answers", "Read/Answers", 100.0},
       {"rules of 500, answers at the end / read it", "Learn/Key", "Read/Key", 100.0},
       {"rules of 10,000 questions / read it", "Learn/LongKey", "Read/LongKey", 10.0},
       {"anew after a mark, 50 questions", "LearnMarked/Key", "Read/ShortKey", 200.0,
        Measure::Milliseconds}});
}

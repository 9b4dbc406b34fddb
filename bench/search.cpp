// SPDX-License-Identifier: MIT
// Searching an exam of 500 full questions, compared with searches of the same texts by other code that keeps
// its hits, too.
#include "RatioReporter.h"
#include "model/document/ExamServices.h"
#include "model/document/FrameSetExam.h"
#include "platform/posix/PosixFiles.h"
#include "search/ExamSearch.h"
#include "support/RecordingWorld.h"
#include "support/TemporaryFolder.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#define PCRE2_CODE_UNIT_WIDTH 16
#include <pcre2.h>

namespace quorvantis::bench {
namespace {

/// Text with a line end now and then, up to `units`.
std::u16string Prose(std::size_t units, int number) {
  std::u16string text;
  for (int line = 0; text.size() < units; ++line) {
    text += u"Which of these colours does the water cycle have, and why does rain fall in the hills?\r\n";
    if (line == number % 40) text += u"The powerhouse of the cell.\r\n";
  }
  text.resize(units);
  return text;
}

/// Every field of every question is full.
const FrameSetExam& FullExam() {
  static test::TemporaryFolder folder;
  static PosixFiles files;
  static test::RecordingWorld world(folder / "app", files);
  static const FrameSetExam exam = [] {
    FrameSetExam full(world.services);
    for (int n = 1; n <= kMaxQuestions; ++n) {
      ExamQuestion& question = full.Question(n);
      question.kind = static_cast<QuestionKind>(n % 3);
      question.text = question.essayAnswer = Prose(4096, n);
      question.options.fill(Prose(256, n));
      question.answerText = Prose(1024, n);
    }
    return full;
  }();
  return exam;
}

void Ours(benchmark::State& state, const SearchQuery& query) {
  const TextSearch search(query);
  for (auto _ : state) benchmark::DoNotOptimize(FindAll(FullExam(), search).hits.size());
}

/// Keeps the hits that `next` finds: it gets a text and a place, and gives the start and end of the next hit.
template <class Next>
void Peer(benchmark::State& state, Next next) {
  for (auto _ : state) {
    std::vector<SearchHit> hits;
    VisitTexts(FullExam(), [&](const TextPlace& place, const std::u16string& text) {
      std::size_t start = 0;
      for (std::size_t end = 0; next(text, start, end); start = end) {
        hits.push_back({place, static_cast<std::uint32_t>(start), static_cast<std::uint32_t>(end - start)});
      }
    });
    benchmark::DoNotOptimize(hits.data());
  }
}

void Standard(benchmark::State& state, const std::u16string& wanted) {
  Peer(state, [&](const std::u16string& text, std::size_t& start, std::size_t& end) {
    start = text.find(wanted, start);
    end = start + wanted.size();
    return start != std::u16string::npos;
  });
}

struct FreePcre2 {
  void operator()(pcre2_code* code) const { pcre2_code_free(code); }
  void operator()(pcre2_match_data* data) const { pcre2_match_data_free(data); }
};

void Pcre2(benchmark::State& state, const std::u16string& pattern) {
  int error = 0;
  PCRE2_SIZE place = 0;
  const std::unique_ptr<pcre2_code, FreePcre2> code(
      pcre2_compile(reinterpret_cast<PCRE2_SPTR>(pattern.c_str()), PCRE2_ZERO_TERMINATED,
                    PCRE2_MULTILINE | PCRE2_CASELESS, &error, &place, nullptr));
  const std::unique_ptr<pcre2_match_data, FreePcre2> data(
      pcre2_match_data_create_from_pattern(code.get(), nullptr));
  Peer(state, [&](const std::u16string& text, std::size_t& start, std::size_t& end) {
    const auto* units = reinterpret_cast<PCRE2_SPTR>(text.data());
    if (pcre2_match(code.get(), units, text.size(), start, 0, data.get(), nullptr) <= 0) return false;
    start = pcre2_get_ovector_pointer(data.get())[0];
    end = pcre2_get_ovector_pointer(data.get())[1];
    return true;
  });
}

}  // namespace
}  // namespace quorvantis::bench

int main(int argumentCount, char** arguments) {
  using namespace quorvantis;
  using namespace quorvantis::bench;
  RegisterTimed("its case", [](benchmark::State& state) { Ours(state, {u"powerhouse", false, true}); });
  RegisterTimed("any case", [](benchmark::State& state) { Ours(state, {u"Powerhouse"}); });
  RegisterTimed("a word", [](benchmark::State& state) { Ours(state, {u"the", false, false, true}); });
  RegisterTimed("one letter", [](benchmark::State& state) { Ours(state, {u"e"}); });
  RegisterTimed("pattern", [](benchmark::State& state) { Ours(state, {u"p(ow)er\\w+", true}); });
  RegisterTimed("std", [](benchmark::State& state) { Standard(state, u"powerhouse"); });
  RegisterTimed("std, letter", [](benchmark::State& state) { Standard(state, u"e"); });
  RegisterTimed("PCRE2", [](benchmark::State& state) { Pcre2(state, u"powerhouse"); });
  RegisterTimed("PCRE2, word", [](benchmark::State& state) { Pcre2(state, u"\\bthe\\b"); });
  RegisterTimed("PCRE2, pattern", [](benchmark::State& state) { Pcre2(state, u"p(ow)er\\w+"); });
  RunComparisons(argumentCount, arguments,
                 {{"find in 500 full questions / u16string::find", "its case", "std", 1.0},
                  {"without regard to case / PCRE2", "any case", "PCRE2", 1.0},
                  {"a whole word / PCRE2", "a word", "PCRE2, word", 2.0},
                  {"a pattern / PCRE2", "pattern", "PCRE2, pattern", 1.5},
                  {"the commonest letter / u16string::find", "one letter", "std, letter", 1.5},
                  {"a text in 500 full questions", "any case", "std", 50.0, Measure::Milliseconds},
                  {"its half a million hits", "one letter", "std, letter", 20.0, Measure::Milliseconds}});
}

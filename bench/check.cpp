// SPDX-License-Identifier: MIT
// Checking exams of 500 questions, compared with a search for one word in their texts by other code.
#include "RatioReporter.h"
#include "check/ExamCheck.h"
#include "model/document/ExamServices.h"
#include "model/document/FrameSetExam.h"
#include "platform/posix/PosixFiles.h"
#include "support/RecordingWorld.h"
#include "support/TemporaryFolder.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <random>
#include <string>

#define PCRE2_CODE_UNIT_WIDTH 16
#include <pcre2.h>

namespace quorvantis::bench {
namespace {

/// Words that are never the same twice, up to `units`.
std::u16string Prose(std::size_t units, std::mt19937& random) {
  std::u16string text = u"Which of these";
  while (text.size() + 8 < units) {
    text += u' ';
    for (std::size_t i = 2 + random() % 6; i > 0; --i) text += static_cast<char16_t>(u'a' + random() % 26);
  }
  return text + u"?";
}

test::RecordingWorld& World() {
  static test::TemporaryFolder folder;
  static PosixFiles files;
  static test::RecordingWorld world(folder / "app", files);
  return world;
}

/// 500 choice questions; `text` and `option` are lengths in UTF-16 units.
FrameSetExam MakeExam(std::size_t text, std::size_t option) {
  std::mt19937 random(1);
  FrameSetExam exam(World().services);
  for (int n = 1; n <= kMaxQuestions; ++n) {
    ExamQuestion& question = exam.Question(n);
    question.text = Prose(text, random);
    for (std::size_t i = 0; i < 4; ++i) question.options[i] = Prose(option, random);
    question.answerLetters = std::u16string(1, u"abcd"[n % 4]);
  }
  return exam;
}

const FrameSetExam& UsualExam() {
  static const FrameSetExam exam = MakeExam(160, 40);
  return exam;
}
const FrameSetExam& FullExam() {
  static const FrameSetExam exam = MakeExam(4000, 240);
  return exam;
}

void Ours(benchmark::State& state, const FrameSetExam& exam) {
  for (auto _ : state) benchmark::DoNotOptimize(CheckExam(exam).data());
}

struct FreePcre2 {
  void operator()(pcre2_code* code) const { pcre2_code_free(code); }
  void operator()(pcre2_match_data* data) const { pcre2_match_data_free(data); }
};

/// Looks for one of a few words in every text, as each rule about wording does for hundreds.
void Peer(benchmark::State& state, const FrameSetExam& exam) {
  const std::u16string pattern = u"\\b(not|except|never|picture|figure|above|previous|question)\\b";
  int error = 0;
  PCRE2_SIZE place = 0;
  const std::unique_ptr<pcre2_code, FreePcre2> code(
      pcre2_compile(reinterpret_cast<PCRE2_SPTR>(pattern.c_str()), PCRE2_ZERO_TERMINATED, PCRE2_CASELESS,
                    &error, &place, nullptr));
  const std::unique_ptr<pcre2_match_data, FreePcre2> data(
      pcre2_match_data_create_from_pattern(code.get(), nullptr));
  for (auto _ : state) {
    int found = 0;
    VisitTexts(exam, [&](const TextPlace&, const std::u16string& text) {
      const auto* units = reinterpret_cast<PCRE2_SPTR>(text.data());
      if (pcre2_match(code.get(), units, text.size(), 0, 0, data.get(), nullptr) > 0) ++found;
    });
    benchmark::DoNotOptimize(found);
  }
}

}  // namespace
}  // namespace quorvantis::bench

int main(int argumentCount, char** arguments) {
  using namespace quorvantis::bench;
  RegisterTimed("usual", [](benchmark::State& state) { Ours(state, UsualExam()); });
  RegisterTimed("full", [](benchmark::State& state) { Ours(state, FullExam()); });
  RegisterTimed("PCRE2", [](benchmark::State& state) { Peer(state, UsualExam()); });
  RegisterTimed("PCRE2, full", [](benchmark::State& state) { Peer(state, FullExam()); });
  RunComparisons(argumentCount, arguments,
                 {{"check 500 questions", "usual", "PCRE2", 50.0, Measure::Milliseconds},
                  {"check 500 full questions / PCRE2, eight words", "full", "PCRE2, full", 2.0}});
}

// SPDX-License-Identifier: MIT
// Marking and parsing a paper of 500 questions, compared with another engine that substitutes by the same
// rules and splits the questions in one sweep each. Also a pass of 3000 replacements whose rule looks around.
#include "RatioReporter.h"
#include "import/marking/ImportMarkers.h"
#include "import/marking/QuestionTextParser.h"
#include "import/marking/TextMarking.h"
#include "platform/DebugOutput.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#define PCRE2_CODE_UNIT_WIDTH 16
#include <pcre2.h>

namespace quorvantis::bench {
namespace {

constexpr int kQuestions = 500;
const CancelHook kNeverCancelled;

class NoDebugOutput : public DebugOutput {
  void Line(std::u16string_view) override {}
};

std::u16string Number(int number) {
  const std::string digits = std::to_string(number);
  return {digits.begin(), digits.end()};
}

/// About 500 characters a question. Every third has a picture; every 50th begins a part of the paper.
const std::u16string& Paper() {
  static const std::u16string paper = [] {
    std::u16string text = u"Class 4, spring test\r";
    for (int n = 1; n <= kQuestions; ++n) {
      if (n % 50 == 1) text += u"========\rPart B: Tick what is true.\r";
      text += Number(n) + u". Which of these statements about the water cycle is true, and which is not?\r";
      for (int line = 0; line < 5; ++line)
        text += u"Think of what the sun does to rivers, lakes and the sea.\r";
      if (n % 3 == 0) text += u" " + Number(n) + u".bmp ";
      text += u"\rA. Rain falls up.\rB) The sun is cold.\rC. Clouds hold water.\rD. None.\rAnswer: C\r";
    }
    return text;
  }();
  return paper;
}

/// The rules of a sample paper.
const ImportSettings& Rules() {
  static const ImportSettings rules = [] {
    ImportSettings settings;
    settings.m_strBmp = u"[ ]\\d+\\.bmp[ ]";
    settings.m_strPreQuestion = u"\\s*^\\d+[.)]\\s*";
    settings.m_strTitle = u"^Part [A-Z]:[^\\r\\n!]*";
    settings.m_strPreAnswer = u"\\s*^Answer:[ \\t]*";
    settings.m_strPattern =
        u"(?<Q1>.+?)\\s*^A[.)]\\s*(?<A>.+?)\\s*^B[.)]\\s*(?<B>.+?)(?:\\s*^C[.)]\\s*(?<C>.+?))?"
        u"(?:\\s*^D[.)]\\s*(?<D>.+?))?(?:\\s*^E[.)]\\s*(?<E>.+?))?\\s*\\z|(?<Q2>.*\\S)";
    return settings;
  }();
  return rules;
}

constexpr std::u16string_view kLookAround = u"\\b(?<![.\\d])the (?!sea)|\\bwhat(?= )";

void Import(benchmark::State& state) {
  NoDebugOutput debug;
  for (auto _ : state) {
    const MarkedText marked = TextToString(Paper(), Rules(), kNeverCancelled);
    const ReadPaper paper = QuestionTextParser(Rules(), debug, kNeverCancelled).Parse(marked.text, 1);
    if (paper.questions.size() != kQuestions) state.SkipWithError("questions are missing");
  }
}

void LookAround(benchmark::State& state) {
  ImportSettings rules;
  rules.m_strPreQuestion = kLookAround;
  for (auto _ : state) {
    const int count = TextToString(Paper(), rules, kNeverCancelled).counts[0].second;
    if (count < 3000) state.SkipWithError("replacements are missing");
  }
}

/// A rule of the peer.
class PeerRule {
 public:
  explicit PeerRule(std::u16string_view pattern) {
    const std::unique_ptr<pcre2_compile_context, Freed> context(pcre2_compile_context_create(nullptr));
    pcre2_set_newline(context.get(), PCRE2_NEWLINE_ANYCRLF);
    int error = 0;
    PCRE2_SIZE place = 0;
    code_.reset(pcre2_compile(Units(pattern), pattern.size(), PCRE2_DOTALL | PCRE2_MULTILINE, &error, &place,
                              context.get()));
    data_.reset(pcre2_match_data_create_from_pattern(code_.get(), nullptr));
  }

  std::u16string Replaced(std::u16string_view text, std::u16string_view marker) const {
    std::u16string result(2 * text.size() + 1, u'\0');
    PCRE2_SIZE size = result.size();
    pcre2_substitute(code_.get(), Units(text), text.size(), 0, PCRE2_SUBSTITUTE_GLOBAL, data_.get(), nullptr,
                     Units(marker), marker.size(), reinterpret_cast<PCRE2_UCHAR*>(result.data()), &size);
    result.resize(size);
    return result;
  }

  bool Matches(std::u16string_view text) const {
    return pcre2_match(code_.get(), Units(text), text.size(), 0, 0, data_.get(), nullptr) > 0;
  }

 private:
  struct Freed {
    void operator()(pcre2_compile_context* context) const { pcre2_compile_context_free(context); }
    void operator()(pcre2_code* code) const { pcre2_code_free(code); }
    void operator()(pcre2_match_data* data) const { pcre2_match_data_free(data); }
  };

  static PCRE2_SPTR Units(std::u16string_view text) { return reinterpret_cast<PCRE2_SPTR>(text.data()); }

  std::unique_ptr<pcre2_code, Freed> code_;
  std::unique_ptr<pcre2_match_data, Freed> data_;
};

void PeerImport(benchmark::State& state) {
  for (auto _ : state) {
    std::u16string text = PeerRule(Rules().m_strBmp).Replaced(Paper(), kPictureMarker);
    text = PeerRule(Rules().m_strPreQuestion).Replaced(text, kQuestionMarker);
    text = PeerRule(Rules().m_strTitle).Replaced(text, u"");
    text = PeerRule(Rules().m_strPreAnswer).Replaced(text, kAnswerMarker);
    const PeerRule pattern(Rules().m_strPattern);
    int questions = 0;
    std::size_t at = text.find(kQuestionMarker);
    while (at != text.npos) {
      at += kQuestionMarker.size();
      const std::size_t end = text.find(kAnswerMarker, at);
      if (pattern.Matches(std::u16string_view(text).substr(at, end - at))) ++questions;
      at = text.find(kQuestionMarker, end);
    }
    if (questions != kQuestions) state.SkipWithError("questions are missing");
  }
}

void PeerLookAround(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(PeerRule(kLookAround).Replaced(Paper(), kQuestionMarker));
}

BENCHMARK(Import)->UseRealTime()->Repetitions(9)->Unit(benchmark::kMillisecond);
BENCHMARK(PeerImport)->UseRealTime()->Repetitions(9)->Unit(benchmark::kMillisecond);
BENCHMARK(LookAround)->UseRealTime()->Repetitions(9)->Unit(benchmark::kMillisecond);
BENCHMARK(PeerLookAround)->UseRealTime()->Repetitions(9)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quorvantis::bench

int main(int argumentCount, char** arguments) {
  using quorvantis::bench::Measure;
  quorvantis::bench::RunComparisons(
      argumentCount, arguments,
      {{"parse 500 questions / PCRE2, one sweep", "Import", "PeerImport", 2.0},
       {"3000 replacements / PCRE2", "LookAround", "PeerLookAround", 100.0, Measure::Beyond}});
}

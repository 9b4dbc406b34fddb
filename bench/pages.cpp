// SPDX-License-Identifier: MIT
// Composing and writing the pages of a preview and a print, against one write of the same bytes.
#include "BenchFolder.h"
#include "RatioReporter.h"
#include "cli/CommandLine.h"
#include "cli/ExamSession.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>

namespace {

namespace fs = std::filesystem;
using namespace quorvantis;

fs::path folder = "pages";
std::istringstream noInput;
std::ostringstream output;
cli::Console console{noInput, output, std::cerr};

/// 500 questions of the four kinds, each with a picture or a film.
class Pages {
 public:
  Pages() : session_(console, {folder, false}) {
    for (int n = 1; n <= kMaxQuestions; ++n) {
      ExamQuestion& question = session_.exam.Question(n);
      question.kind = static_cast<QuestionKind>(n % 4);
      question.text =
          u"A question of the usual length, such as teachers write them. " + std::u16string(140, u'q');
      for (auto& option : question.options) option = u"One of five possible answers";
      question.answerLetters = u"bd";
      question.answerText = u"red<@>blue";
      question.attachmentPaths[0] = n % 10 == 0 ? u"/ex/exam/film.avi" : u"/ex/exam/picture.jpg";
    }
    session_.exam.CountQuestions();
  }

  FrameSetExam& Exam() { return session_.exam; }

 private:
  cli::ExamSession session_;
};

void WritePreview(benchmark::State& state) {
  Pages pages;
  for (auto _ : state) pages.Exam().WritePreview(folder / "SEE.htm");
}

void WritePrint(benchmark::State& state) {
  Pages pages;
  for (auto _ : state) pages.Exam().WritePrintPage(folder / "exam_Print.htm");
}

void WriteBytesOf(benchmark::State& state, const fs::path& page) {
  std::ifstream in(page, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(in), {}};
  for (auto _ : state) {
    std::ofstream out(folder / "same-bytes", std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  }
}
void WritePreviewBytes(benchmark::State& state) {
  WriteBytesOf(state, folder / "SEE.htm");
}
void WritePrintBytes(benchmark::State& state) {
  WriteBytesOf(state, folder / "exam_Print.htm");
}

BENCHMARK(WritePreview)->UseRealTime()->Repetitions(9)->Unit(benchmark::kMillisecond);
BENCHMARK(WritePreviewBytes)->UseRealTime()->Repetitions(9)->Unit(benchmark::kMillisecond);
BENCHMARK(WritePrint)->UseRealTime()->Repetitions(9)->Unit(benchmark::kMillisecond);
BENCHMARK(WritePrintBytes)->UseRealTime()->Repetitions(9)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argumentCount, char** arguments) {
  folder = quorvantis::bench::TakeFolder(argumentCount, arguments) / "pages";
  fs::create_directories(folder);
  benchmark::Initialize(&argumentCount, arguments);
  quorvantis::bench::RatioReporter reporter({
      {"preview of 500 questions / write the bytes", "WritePreview", "WritePreviewBytes", 20.0, true},
      {"print of 500 questions / write the bytes", "WritePrint", "WritePrintBytes", 20.0, true},
  });
  benchmark::RunSpecifiedBenchmarks(&reporter);
  fs::remove_all(folder);
  return 0;
}

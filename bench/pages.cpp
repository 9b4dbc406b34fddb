// SPDX-License-Identifier: MIT
// Composing and writing the pages of a preview and a print, compared with one write of the same bytes.
#include "BenchArguments.h"
#include "RatioReporter.h"
#include "cli/CommandLine.h"
#include "cli/session/ExamSession.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using namespace quorvantis;

fs::path folder = "pages";
std::istringstream noInput;
std::ostringstream output;
cli::Console console{noInput, output, std::cerr};

/// Questions of the four kinds, each with a picture or a video.
class Pages {
 public:
  explicit Pages(int count) : session_(console, {folder, false}) {
    for (int n = 1; n <= count; ++n) {
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

fs::path PreviewPage(int count) {
  return folder / ("SEE" + std::to_string(count) + ".htm");
}
fs::path PrintPage(int count) {
  return folder / ("exam" + std::to_string(count) + "_Print.htm");
}

void WritePreview(benchmark::State& state, int count) {
  Pages pages(count);
  for (auto _ : state) pages.Exam().WritePreview(PreviewPage(count));
}

void WritePrint(benchmark::State& state, int count) {
  Pages pages(count);
  for (auto _ : state) pages.Exam().WritePrintPage(PrintPage(count));
}

void WriteBytesOf(benchmark::State& state, const fs::path& page) {
  std::ifstream in(page, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(in), {}};
  for (auto _ : state) {
    std::ofstream out(folder / "same-bytes", std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  }
}

void WritePreviewBytes(benchmark::State& state, int count) {
  WriteBytesOf(state, PreviewPage(count));
}
void WritePrintBytes(benchmark::State& state, int count) {
  WriteBytesOf(state, PrintPage(count));
}

void Register(const std::string& name, void (*body)(benchmark::State&, int), int count) {
  benchmark::RegisterBenchmark(name.c_str(), body, count)
      ->UseRealTime()
      ->Repetitions(9)
      ->Unit(benchmark::kMillisecond);
}

}  // namespace

int main(int argumentCount, char** arguments) {
  folder = bench::TakeFolder(argumentCount, arguments) / "pages";
  fs::create_directories(folder);
  std::vector<bench::Comparison> rows;
  for (const int count : {10, 100, kMaxQuestions}) {
    const std::string size = " of " + std::to_string(count) + " questions";
    Register("preview" + size, WritePreview, count);
    Register("preview bytes" + size, WritePreviewBytes, count);
    Register("print" + size, WritePrint, count);
    Register("print bytes" + size, WritePrintBytes, count);
    for (const std::string page : {"preview", "print"})
      rows.push_back({page + size + " / write the bytes", page + size, page + " bytes" + size, 20.0,
                      bench::Measure::Beyond});
  }
  bench::RunComparisons(argumentCount, arguments, rows);
  fs::remove_all(folder);
  return 0;
}

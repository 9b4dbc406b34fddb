// SPDX-License-Identifier: MIT
// Opening and saving exams, against copying and reading the same bytes.
#include "BenchFolder.h"
#include "RatioReporter.h"
#include "cli/CommandLine.h"
#include "cli/ExamSession.h"
#include "text/PathText.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

namespace fs = std::filesystem;
using namespace quorvantis;

constexpr int kAttachments = 30;
constexpr std::size_t kAttachmentSize = 10 * 1024 * 1024;

fs::path folder = ".";
std::istringstream noInput;
std::ostringstream output;
cli::Console console{noInput, output, std::cerr};

fs::path PlainExam() {
  return folder / "plain.exm";
}
fs::path HeavyExam() {
  return folder / "heavy.exm";
}
fs::path Copy() {
  return folder / "copy.exm";
}

cli::CommonOptions WorkIn(const char* name) {
  return {folder / name, false};
}

void FillQuestions(FrameSetExam& exam) {
  for (int n = 1; n <= kMaxQuestions; ++n) {
    ExamQuestion& question = exam.Question(n);
    question.text =
        u"A question of the usual length, such as teachers write them. " + std::u16string(140, u'q');
    for (auto& option : question.options) option = u"One of five possible answers";
    question.answerLetters = u"bd";
  }
}

void AttachFiles(FrameSetExam& exam) {
  for (int i = 0; i < kAttachments; ++i) {
    const fs::path file = folder / ("attached" + std::to_string(i) + ".bin");
    std::string bytes(kAttachmentSize, static_cast<char>('a' + i % 26));
    for (std::size_t at = 0; at < bytes.size(); at += 512) bytes[at] = static_cast<char>(at >> 9);
    std::ofstream(file, std::ios::binary) << bytes;
    exam.Question(i + 1).attachmentPaths[0] = PathToText(fs::absolute(file));
    exam.Question(i + 1).attachmentNames[0] = PathToText(file.filename());
  }
}

void MakeExams() {
  cli::ExamSession session(console, WorkIn("make"));
  FillQuestions(session.exam);
  session.exam.WriteExamFile(PlainExam());
  AttachFiles(session.exam);
  session.exam.WriteExamFile(HeavyExam());
}

void ReadBytes(benchmark::State& state) {
  for (auto _ : state) {
    std::ifstream in(PlainExam(), std::ios::binary);
    std::vector<char> bytes(static_cast<std::size_t>(fs::file_size(PlainExam())));
    in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    benchmark::DoNotOptimize(bytes.data());
  }
}

void Open(benchmark::State& state, const fs::path& exam) {
  cli::ExamSession session(console, WorkIn("open"));
  for (auto _ : state) {
    session.exam.Reset();
    session.Load(exam);
  }
}
void OpenPlain(benchmark::State& state) {
  Open(state, PlainExam());
}
void OpenHeavy(benchmark::State& state) {
  Open(state, HeavyExam());
}

void SaveHeavy(benchmark::State& state) {
  cli::ExamSession session(console, WorkIn("save"));
  session.Load(HeavyExam());
  for (auto _ : state) session.exam.WriteExamFile(folder / "saved.exm");
}

void CopyAndSync(benchmark::State& state) {
  const std::string command = "cp --reflink=never '" + HeavyExam().string() + "' '" + Copy().string() +
                              "' && sync '" + Copy().string() + "'";
  for (auto _ : state) {
    if (std::system(command.c_str()) != 0) state.SkipWithError("cp failed");  // NOLINT(concurrency-mt-unsafe)
  }
}

/// Largest memory, in MB, of a child process that opens and saves the heavy exam.
double PeakMemory() {
  const pid_t child = ::fork();
  if (child == 0) {
    cli::ExamSession session(console, WorkIn("peak"));
    session.Load(HeavyExam());
    session.exam.WriteExamFile(folder / "saved.exm");
    std::_Exit(0);
  }
  int status = 0;
  rusage usage{};
  ::wait4(child, &status, 0, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024;
}

void Show(benchmark::State& state) {
  const std::string exam = PlainExam().string();
  for (auto _ : state) {
    output.str("");
    const char* arguments[] = {"quorvantis-cli", "show", exam.c_str(), "--json"};
    cli::RunCommandLine(4, arguments, console);
  }
}

BENCHMARK(ReadBytes)->UseRealTime()->Repetitions(9)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenPlain)->UseRealTime()->Repetitions(9)->Unit(benchmark::kMillisecond);
BENCHMARK(Show)->UseRealTime()->Repetitions(5)->Unit(benchmark::kMillisecond);
BENCHMARK(CopyAndSync)->UseRealTime()->Iterations(1)->Repetitions(5)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenHeavy)->UseRealTime()->Iterations(1)->Repetitions(5)->Unit(benchmark::kMillisecond);
BENCHMARK(SaveHeavy)->UseRealTime()->Iterations(1)->Repetitions(5)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argumentCount, char** arguments) {
  folder = quorvantis::bench::TakeFolder(argumentCount, arguments) / "exam-file";
  fs::create_directories(folder);
  MakeExams();
  const double peak = PeakMemory();  // before this process has grown itself
  benchmark::Initialize(&argumentCount, arguments);
  quorvantis::bench::RatioReporter reporter({
      {"open 500 questions / read the bytes", "OpenPlain", "ReadBytes", 3.0},
      {"open with 300 MB / cp and sync", "OpenHeavy", "CopyAndSync", 1.3},
      {"save with 300 MB / cp and sync", "SaveHeavy", "CopyAndSync", 1.3},
  });
  benchmark::RunSpecifiedBenchmarks(&reporter);
  std::cout << "peak memory, open and save with 300 MB: " << peak << " MB (wanted: below 40)\n";
  fs::remove_all(folder);
  return 0;
}

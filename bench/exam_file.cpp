// SPDX-License-Identifier: MIT
// Opening and saving exams of growing size, compared with copying and reading the same bytes.
#include "BenchArguments.h"
#include "RatioReporter.h"
#include "cli/CommandLine.h"
#include "cli/session/ExamSession.h"
#include "text/PathText.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

namespace fs = std::filesystem;
using namespace quorvantis;

constexpr int kQuestionCounts[] = {10, 100, kMaxQuestions};
constexpr int kMegabytes[] = {1, 30, 300, 1000};
constexpr int kPeakMegabytes = 300;
constexpr int kAttachments = 10;  // each a tenth of the total size

fs::path folder = ".";
std::istringstream noInput;
std::ostringstream output;
cli::Console console{noInput, output, std::cerr};

fs::path PlainExam(int questions) {
  return folder / ("plain" + std::to_string(questions) + ".exm");
}
fs::path HeavyExam(int megabytes) {
  return folder / ("heavy" + std::to_string(megabytes) + ".exm");
}

cli::CommonOptions WorkIn(const char* name) {
  return {folder / name, false};
}

void FillQuestions(FrameSetExam& exam, int count) {
  for (int n = 1; n <= count; ++n) {
    ExamQuestion& question = exam.Question(n);
    question.text =
        u"A question of the usual length, such as teachers write them. " + std::u16string(140, u'q');
    for (auto& option : question.options) option = u"One of five possible answers";
    question.answerLetters = u"bd";
  }
}

void AttachFiles(FrameSetExam& exam, int megabytes) {
  const auto size = static_cast<std::size_t>(megabytes) * 1024 * 1024 / kAttachments;
  for (int i = 0; i < kAttachments; ++i) {
    const fs::path file = folder / ("attached" + std::to_string(i) + ".bin");
    std::string bytes(size, static_cast<char>('a' + i));
    for (std::size_t at = 0; at < bytes.size(); at += 512) bytes[at] = static_cast<char>(at >> 9);
    std::ofstream(file, std::ios::binary) << bytes;
    exam.Question(i + 1).attachmentPaths[0] = PathToText(fs::absolute(file));
    exam.Question(i + 1).attachmentNames[0] = PathToText(file.filename());
  }
}

void MakeExams() {
  cli::ExamSession session(console, WorkIn("make"));
  for (const int questions : kQuestionCounts) {
    FillQuestions(session.exam, questions);
    session.exam.WriteExamFile(PlainExam(questions));
  }
  for (const int megabytes : kMegabytes) {
    AttachFiles(session.exam, megabytes);
    session.exam.WriteExamFile(HeavyExam(megabytes));
  }
}

void Open(benchmark::State& state, const fs::path& exam) {
  cli::ExamSession session(console, WorkIn("open"));
  for (auto _ : state) {
    session.exam.Reset();
    session.Load(exam);
  }
}

void Save(benchmark::State& state, const fs::path& exam) {
  cli::ExamSession session(console, WorkIn("save"));
  session.Load(exam);
  for (auto _ : state) session.exam.WriteExamFile(folder / "saved.exm");
}

void ReadBytes(benchmark::State& state, const fs::path& exam) {
  for (auto _ : state) {
    std::ifstream in(exam, std::ios::binary);
    std::vector<char> bytes(static_cast<std::size_t>(fs::file_size(exam)));
    in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    benchmark::DoNotOptimize(bytes.data());
  }
}

void CopyAndSync(benchmark::State& state, const fs::path& exam) {
  const std::string copy = folder / "copy.exm";
  const std::string command =
      "cp --reflink=never '" + exam.string() + "' '" + copy + "' && sync '" + copy + "'";
  for (auto _ : state) {
    if (std::system(command.c_str()) != 0) state.SkipWithError("cp failed");  // NOLINT(concurrency-mt-unsafe)
  }
}

/// Peak memory, in MB, of a child process that opens and saves an exam.
int PeakMemory(const fs::path& exam) {
  const pid_t child = ::fork();
  if (child == 0) {
    cli::ExamSession session(console, WorkIn("peak"));
    session.Load(exam);
    session.exam.WriteExamFile(folder / "saved.exm");
    std::_Exit(0);
  }
  int status = 0;
  rusage usage{};
  ::wait4(child, &status, 0, &usage);
  return static_cast<int>(usage.ru_maxrss / 1024);
}

using Body = void (*)(benchmark::State&, const fs::path&);

benchmark::internal::Benchmark* Register(const std::string& name, Body body, const fs::path& exam) {
  const auto run = [body, exam](benchmark::State& state) { body(state, exam); };
  return benchmark::RegisterBenchmark(name.c_str(), run)->UseRealTime()->Unit(benchmark::kMillisecond);
}

/// Writes so much that one iteration per repetition is enough.
void RegisterOnce(const std::string& name, Body body, const fs::path& exam) {
  Register(name, body, exam)->Iterations(1)->Repetitions(5);
}

std::vector<bench::Comparison> RegisterAll() {
  std::vector<bench::Comparison> rows;
  for (const int count : kQuestionCounts) {
    const std::string size = std::to_string(count) + " questions";
    Register("open " + size, Open, PlainExam(count))->Repetitions(9);
    Register("read " + size, ReadBytes, PlainExam(count))->Repetitions(9);
    const bool isMost =
        count == kMaxQuestions;  // for a small exam most of the time goes into creating its folders
    rows.push_back({"open " + size + " / read the bytes", "open " + size, "read " + size, isMost ? 3.0 : 5.0,
                    isMost ? bench::Measure::Ratio : bench::Measure::Beyond});
  }
  for (const int megabytes : kMegabytes) {
    const std::string size = std::to_string(megabytes) + " MB";
    RegisterOnce("open " + size, Open, HeavyExam(megabytes));
    RegisterOnce("copy " + size, CopyAndSync, HeavyExam(megabytes));
    RegisterOnce("save " + size, Save, HeavyExam(megabytes));
    rows.push_back({"open with " + size + " / cp and sync", "open " + size, "copy " + size, 1.3});
    rows.push_back({"save with " + size + " / cp and sync", "save " + size, "copy " + size, 1.3});
  }
  return rows;
}

}  // namespace

int main(int argumentCount, char** arguments) {
  folder = bench::TakeFolder(argumentCount, arguments) / "exam-file";
  fs::create_directories(folder);
  MakeExams();
  const int peak = PeakMemory(HeavyExam(kPeakMegabytes));  // before this process grows
  bench::RunComparisons(argumentCount, arguments, RegisterAll());
  bench::PrintRow("peak memory, open and save with 300 MB", "", "", std::to_string(peak) + " MB", "< 40 MB");
  fs::remove_all(folder);
  return 0;
}

// SPDX-License-Identifier: MIT
// Making and verifying 26 versions of 500 questions, compared with writing their files.
#include "BenchArguments.h"
#include "RatioReporter.h"
#include "examfile/ExamFileWriter.h"
#include "host/PlanJson.h"
#include "model/AnswerLetters.h"
#include "model/document/ExamServices.h"
#include "model/document/FrameSetExam.h"
#include "platform/FolderEntries.h"
#include "platform/WholeFile.h"
#include "platform/digest/OpenSslDigest.h"
#include "platform/posix/PosixFiles.h"
#include "support/RecordingWorld.h"
#include "versions/make/VersionMaker.h"
#include "versions/plan/VersionNames.h"
#include "versions/plan/VersionPlanner.h"
#include "versions/verify/VersionVerifier.h"

#include <benchmark/benchmark.h>

#include <random>
#include <string>

namespace quorvantis::bench {
namespace {

namespace fs = std::filesystem;

/// What all benchmarks work on.
class VersionsBench {
 public:
  explicit VersionsBench(fs::path folder) : folder_(std::move(folder)), exam_(world_.services) {
    fs::remove_all(folder_);
    fs::create_directories(folder_);
    std::mt19937 random(1);
    for (int number = 1; number <= kMaxQuestions; ++number) FillQuestion(exam_.Question(number), random);
    exam_.CountQuestions();
    isReady_ = !ExamFileWriter(exam_, world_.services).Write(folder_ / "exam.exm") && Make();
  }
  VersionsBench(const VersionsBench&) = delete;
  VersionsBench& operator=(const VersionsBench&) = delete;
  ~VersionsBench() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
  }

  bool IsReady() const { return isReady_; }
  bool Plan() { return PlanVersions(exam_, kMaxQuestions, request_).IsDone(); }
  bool Make() {
    const VersionOrder order{folder_ / "exam.exm", folder_ / "versions", request_, true};
    return VersionMaker(world_.services, folder_ / "work", ports_).Make(order).problem.empty();
  }
  bool Verify() {
    const VersionVerifier verifier(world_.services, folder_ / "work", ports_);
    return verifier.Verify(folder_ / "versions", {}).faults.empty();
  }
  /// Writes the same files elsewhere.
  bool Write() {
    const fs::path copies = folder_ / "copies";
    fs::create_directories(copies);
    for (const fs::path& file : EntriesOf(folder_ / "versions")) {
      if (SaveWholeFile(files_, copies / file.filename(), ReadWholeFile(file, kLargest).value_or("")))
        return false;
    }
    return true;
  }

 private:
  static constexpr std::size_t kLargest = std::size_t{64} << 20;

  static void FillQuestion(ExamQuestion& question, std::mt19937& random) {
    question.text = Prose(160, random);
    for (std::size_t i = 0; i < 4; ++i) question.options[i] = Prose(40, random);
    question.answerLetters = std::u16string(1, u"abcd"[random() % 4]);
    question.answerMask = AnswerLettersToMask(question.answerLetters);
  }

  static std::u16string Prose(std::size_t units, std::mt19937& random) {
    std::u16string text = u"What";
    while (text.size() < units)
      text += random() % 6 == 0 ? u' ' : static_cast<char16_t>(u'a' + random() % 26);
    return text;
  }

  const fs::path folder_;
  PosixFiles files_;
  test::RecordingWorld world_{folder_ / "app", files_};
  FrameSetExam exam_;
  OpenSslDigest digest_;
  PlanJson form_{digest_};
  VersionPorts ports_{digest_, form_, nullptr, nullptr, nullptr, "1"};
  VersionRequest request_{LetterNames(kMaxVersions), 1};
  bool isReady_ = false;
};

void Register(const std::string& name, VersionsBench& bench, bool (VersionsBench::*work)()) {
  const auto run = [&bench, work](benchmark::State& state) {
    for (auto _ : state) {
      if (!bench.IsReady() || !(bench.*work)()) return state.SkipWithError("failed");
    }
  };
  benchmark::RegisterBenchmark(name.c_str(), run)
      ->Unit(benchmark::kMillisecond)
      ->Repetitions(5)
      ->UseRealTime();
}

}  // namespace
}  // namespace quorvantis::bench

int main(int argumentCount, char** arguments) {
  using namespace quorvantis::bench;
  VersionsBench bench(TakeFolder(argumentCount, arguments) / "versions");
  Register("plan", bench, &VersionsBench::Plan);
  Register("make", bench, &VersionsBench::Make);
  Register("verify", bench, &VersionsBench::Verify);
  Register("write", bench, &VersionsBench::Write);
  RunComparisons(
      argumentCount, arguments,
      {{"plan 26 versions of 500 questions / write them", "plan", "write", 1000.0, Measure::Milliseconds},
       {"make 26 versions, verified / write them", "make", "write", 4000.0, Measure::Milliseconds},
       {"verify 26 versions / write them", "verify", "write", 3000.0, Measure::Milliseconds}});
}

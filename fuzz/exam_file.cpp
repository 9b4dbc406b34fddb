// SPDX-License-Identifier: MIT
// Feeds any bytes to the exam reader, saves the result and reads that again. Everything that an exam file can
// hold must survive; and whatever names the file contains, nothing may appear outside the work folder.
//
// The input is run-length coded, since exam files are mostly zeros: a byte 00 is followed by a count and
// stands for 16 times that many zero bytes, plus one; every other byte stands for itself.
#include "Require.h"
#include "examfile/ExamFileReader.h"
#include "platform/posix/PosixFiles.h"
#include "support/RecordingWorld.h"
#include "support/TemporaryFolder.h"

#include <cstdint>
#include <filesystem>
#include <string>

namespace {

using namespace quorvantis;

std::string ExpandZeros(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t kMaxFile = 1 << 20;  // larger files do the same as smaller ones, only slower
  std::string bytes;
  for (std::size_t i = 0; i < size && bytes.size() < kMaxFile; ++i) {
    if (data[i] != 0) {
      bytes.push_back(static_cast<char>(data[i]));
    } else {
      ++i;
      bytes.append(i < size ? 16U * data[i] + 1U : 1U, '\0');
    }
  }
  return bytes;
}

bool SameQuestion(const ExamQuestion& a, const ExamQuestion& b) {
  // A fill-in answer is cut to the short form unless it was stored in the long form; see ExamFileWriter.
  return a.text == b.text && a.options == b.options && a.answerLetters == b.answerLetters &&
         a.answerText.substr(0, kMaxShortAnswer) == b.answerText.substr(0, kMaxShortAnswer) &&
         a.essayAnswer == b.essayAnswer && a.kind == b.kind && a.answerMask == b.answerMask;
}

/// The application folder contains "TEMP" and the file itself, and nothing else.
void RequireNothingOutside(const std::filesystem::path& folder) {
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    const auto name = entry.path().filename();
    Require(name == "TEMP" || name == "in.exm" || name == "out.exm");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const test::TemporaryFolder folder;
  static PosixFiles files;
  test::RecordingWorld world(folder.Path(), files);
  test::WriteBytes(folder / "in.exm", ExpandZeros(data, size));

  FrameSetExam first(world.services);
  first.SetHostMode(1);
  first.ReadExamFile(folder / "in.exm");
  const ExamReadOutcome outcome = *first.lastRead;
  Require(outcome.opened && first.questionCount >= 0 && first.questionCount <= kMaxQuestions);
  if (outcome.endsEarly)
    Require(outcome.firstMissingQuestion <= first.questionCount || first.questionCount == 0);
  RequireNothingOutside(folder.Path());

  if (!first.WriteExamFile(folder / "out.exm")) return 0;
  const int count = first.questionCount;
  FrameSetExam second(world.services);
  second.SetHostMode(1);
  second.ReadExamFile(folder / "out.exm");
  Require(second.questionCount == count);
  if (outcome.endsEarly) return 0;  // the last question was not reduced to the data of its kind
  for (int n = 1; n <= count; ++n) Require(SameQuestion(first.Question(n), second.Question(n)));
  return 0;
}

// SPDX-License-Identifier: MIT
#include "ExamFileTest.h"
#include "examfile/ByteSource.h"
#include "examfile/ExamFileReader.h"
#include "examfile/ExamFileWriter.h"
#include "examfile/PickedFiles.h"

#include <random>

namespace quorvantis::test {
namespace {

std::string SomeBytes(std::size_t size, std::uint32_t seed) {
  std::mt19937 random(seed);
  std::string bytes(size, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random());
  return bytes;
}

/// A source that read all that it passes over is the oracle.
TEST(ByteSource, JumpsToWhereReadingWouldLead) {
  const TemporaryFolder folder;
  const std::size_t sizes[] = {0, 1, ByteSource::kBufferSize, 5 * ByteSource::kBufferSize + 77};
  for (const std::size_t size : sizes) {
    const std::filesystem::path file = WriteBytes(folder / "bytes", SomeBytes(size, 1));
    std::mt19937 random(static_cast<std::uint32_t>(size));
    for (int round = 0; round < 60; ++round) {
      ByteSource jumps(file);
      ByteSource reads(file);
      for (int step = 0; step < 8; ++step) {
        const auto most = random() % 2 == 0 ? std::uint32_t{1000} : std::uint32_t{3} << 20;
        const std::uint64_t count = random() % most;
        jumps.Take(count, nullptr);
        reads.Take(count, [](std::string_view) {});
        ASSERT_EQ(jumps.Position(), reads.Position());
        ASSERT_EQ(jumps.Ended(), reads.Ended());
        ASSERT_EQ(std::string(jumps.Take(std::size_t{9})), std::string(reads.Take(std::size_t{9})));
      }
    }
  }
}

class PickedFilesTest : public ExamFileTest {
 protected:
  /// Three questions with two files each, the larger ones longer than a buffer.
  std::filesystem::path WriteExam() {
    for (int number = 1; number <= 3; ++number) {
      ExamQuestion& question = exam.Question(number);
      question.text = u"question";
      for (std::size_t slot = 0; slot < 2; ++slot) {
        const auto seed = static_cast<std::uint32_t>(number) * 10 + static_cast<std::uint32_t>(slot);
        std::string& bytes = written[{number, static_cast<unsigned>(slot)}];
        bytes = SomeBytes(slot == 0 ? 900 : std::size_t{3} << 20, seed);
        const auto file = WriteBytes(folder / (std::to_string(number) + std::to_string(slot)), bytes);
        question.attachmentPaths[slot] = PathToText(file);
        question.attachmentNames[slot] = u"name";
      }
    }
    exam.CountQuestions();
    EXPECT_FALSE(ExamFileWriter(exam, world.services).Write(folder / "exam.exm"));
    return folder / "exam.exm";
  }

  std::map<PickedFiles::Place, std::string> written;
};

TEST_F(PickedFilesTest, AreReadWholeAndOthersPassedOver) {
  const std::filesystem::path file = WriteExam();
  for (unsigned picks = 0; picks < 64; ++picks) {
    const auto isPicked = [picks](const PickedFiles::Place& place, const std::u16string&) {
      return (picks >> ((static_cast<unsigned>(place.first) - 1) * 2 + place.second) & 1U) != 0;
    };
    PickedFiles picked(isPicked, std::int64_t{7} << 20);  // room for two large ones
    FrameSetExam read(world.services);
    ReadWithoutUnpacking(read, world.services, file, picked);
    EXPECT_EQ(read.questionCount, 3);
    EXPECT_EQ(read.readDoubt, ReadDoubt::None);
    int large = 0;
    for (int number = 1; number <= 3; ++number) {
      for (unsigned slot = 0; slot < 2; ++slot) {
        large += static_cast<int>(slot == 1 && isPicked({number, slot}, {}));
        const bool isThere = isPicked({number, slot}, {}) && (slot == 0 || large <= 2);
        const auto content = picked.Contents().find({number, slot});
        ASSERT_EQ(content != picked.Contents().end(), isThere) << picks << ' ' << number << ' ' << slot;
        if (!isThere) continue;
        EXPECT_TRUE((content->second == written[{number, slot}]));
      }
    }
  }
}

}  // namespace
}  // namespace quorvantis::test

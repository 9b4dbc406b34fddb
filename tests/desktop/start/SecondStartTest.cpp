// SPDX-License-Identifier: MIT
#include "desktop/start/SecondStart.h"
#include "support/TemporaryFolder.h"

#include <QTest>

#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <vector>

namespace quorvantis::test {
namespace {

struct RecordingStart : FirstStart {
  std::vector<std::filesystem::path> exams;
  bool isFree = true;
  bool IsFree() const override { return isFree; }
  void ComeForward(const std::filesystem::path& exam) override { exams.push_back(exam); }
};

/// Starts again as from another program and returns what that start is told.
HandOverResult StartAgain(const std::filesystem::path& folder, const std::filesystem::path& exam) {
  auto second = std::async(std::launch::async, [&] { return HandOverStart(folder, exam); });
  const auto isOver = [&] { return second.wait_for(std::chrono::seconds(0)) == std::future_status::ready; };
  EXPECT_TRUE(QTest::qWaitFor(isOver));
  return second.get();
}

TEST(SecondStart, HandsItsExamToTheFirst) {
  const TemporaryFolder folder;
  EXPECT_EQ(StartAgain(folder.Path(), {}), HandOverResult::NoAnswer);
  RecordingStart first;
  const SecondStartListener listener(folder.Path(), first);
  EXPECT_EQ(StartAgain(folder.Path(), {}), HandOverResult::Taken);
  EXPECT_EQ(first.exams.back(), "");
  EXPECT_EQ(StartAgain(folder.Path(), "/odd\n\xFF.exm"), HandOverResult::Taken);
  EXPECT_EQ(first.exams.back(), "/odd\n\xFF.exm");
  first.isFree = false;
  EXPECT_EQ(StartAgain(folder.Path(), "/exam.exm"), HandOverResult::Busy);
  EXPECT_EQ(first.exams.back(), "") << "it comes forward all the same";
  EXPECT_EQ(StartAgain(folder / "other", "/exam.exm"), HandOverResult::NoAnswer);
}

}  // namespace
}  // namespace quorvantis::test

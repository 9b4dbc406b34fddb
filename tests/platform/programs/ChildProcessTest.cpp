// SPDX-License-Identifier: MIT
#include "platform/programs/ChildProgram.h"
#include "support/Processes.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <unistd.h>

namespace quorvantis::test {
namespace {

using namespace std::chrono_literals;

ChildOrder Shell(const std::string& script) {
  return {.program = "/bin/sh", .arguments = {"-c", script}};
}

TEST(ChildProcess, GivesItsOutputAndTellsHowItEnded) {
  ChildOrder order = Shell("read line; echo \"[$line]\" $TMPDIR; echo silent >&2; exit $((3 - 1))");
  order.temporaryFolder = "/a b";
  order.readsOutput = true;
  const auto child = ChildProcess::Start(order);
  while (!child->End()) ::usleep(1000);
  EXPECT_EQ(child->End(), ChildEnd::Failed);
  EXPECT_EQ(child->ReadOutput(), "[] /a b\n") << "there is no input";
  EXPECT_EQ(RunChildProgram(Shell("exit 0"), 1min, {}), ChildEnd::Succeeded);
  EXPECT_EQ(RunChildProgram(Shell("kill -9 $$"), 1min, {}), ChildEnd::Failed);
  EXPECT_EQ(RunChildProgram({"/no/such/program", {}}, 1min, {}), ChildEnd::NotStarted);
  EXPECT_EQ(RunChildProgram({"", {}}, 1min, {}), ChildEnd::NotStarted);
}

TEST(ChildProcess, WritesNoFileLargerThanItMay) {
  const TemporaryFolder folder;
  ChildOrder order = Shell("head -c 5000 /dev/zero > " + (folder / "file").string());
  order.largestFile = 1000;
  EXPECT_EQ(RunChildProgram(order, 1min, {}), ChildEnd::Failed);
  EXPECT_EQ(std::filesystem::file_size(folder / "file"), 1000u);
}

TEST(ChildProcess, EndsWithAllItsChildren) {
  for (const bool isCancelled : {false, true}) {
    const TemporaryFolder folder;
    const std::filesystem::path mark = folder / "child";
    const auto hasBegun = [&] { return ReadBytes(mark).ends_with('\n'); };
    const ChildEnd end = RunChildProgram(Shell("sleep 60 & echo $! > " + mark.string() + "; wait"),
                                         isCancelled ? 60s : 1s, [&] { return isCancelled && hasBegun(); });
    EXPECT_EQ(end, isCancelled ? ChildEnd::Cancelled : ChildEnd::TimedOut);
    ASSERT_TRUE(hasBegun());
    const int grandchild = std::stoi(ReadBytes(mark));
    for (int i = 0; i < 300 && IsRunning(grandchild); ++i) ::usleep(10'000);
    EXPECT_FALSE(IsRunning(grandchild)) << isCancelled;
  }
}

}  // namespace
}  // namespace quorvantis::test

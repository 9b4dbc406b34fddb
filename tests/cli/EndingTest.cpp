// SPDX-License-Identifier: MIT
// Commands that are killed while they save.
#include "CommandLineTest.h"
#include "platform/posix/Leftover.h"

#include <csignal>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

class Ending : public CommandLineTest {
 protected:
  /// In a separate process: saves one version after another.
  pid_t StartSaving() {
    const pid_t child = ::fork();
    if (child != 0) return child;
    RemoveLeftoversOnSignals();
    std::string script = "open " + Path("exam.exm") + "\n";
    for (int version = 0; version < 1000; ++version) script += "text " + std::to_string(version) + "\nsave\n";
    Command({"edit"}, script);
    std::abort();
  }
  auto Entries() const { return CountEntries(folder.Path()); }
};

TEST_F(Ending, LeavesTheOldExamOrTheNewOne) {
  constexpr int kRounds = 15;
  fs::resize_file(WriteBytes(folder / "large.bin", ""), 20'000'000);
  Build(Json::parse(R"({"questions": [{"text": "0", "attachments": [{"path": "large.bin"}]}]})"));
  const fs::path backup = folder / "exam.exm~";
  const Json attachments = Shown()["questions"][0]["attachments"];
  std::minstd_rand random(11);
  for (int round = 0; round < kRounds; ++round) {
    fs::remove(backup);
    const auto entries = Entries();
    const pid_t child = StartSaving();
    while (!fs::exists(backup) && ::waitpid(child, nullptr, WNOHANG) == 0) ::usleep(1000);
    ::usleep(static_cast<useconds_t>(random() % 200'000));
    ::kill(child, SIGTERM);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGTERM) << status;
    EXPECT_EQ(Entries(), entries + 1) << "the backup, and nothing half written";
    for (const char* file : {"exam.exm", "exam.exm~"}) {
      const Json exam = Shown(file);
      EXPECT_EQ(exam["truncated"], false);
      EXPECT_EQ(exam["questions"][0]["attachments"], attachments);
    }
  }
}

/// In a separate process: a search that would take minutes. Its status and messages are written to files.
TEST_F(Ending, CtrlCEndsASlowSearchAndLeavesTheExam) {
  Build(Json::parse(R"({"questions": [{"text": ")" + std::string(4000, 'a') + R"("}]})"));
  const std::string bytes = ReadBytes(folder / "exam.exm");
  const std::string pattern = R"("((a{0,1000}){0,1000}){0,1000}(\\1)*b")";
  for (const std::string& command : {"find " + pattern, "replace " + pattern + " x"}) {
    fs::remove(folder / "started.exm");
    const std::string script = "open " + Path("exam.exm") + "\nsaveas " + Path("started.exm") + "\nopen " +
                               Path("exam.exm") + "\n" + command + " --pattern\nsave\n";
    const pid_t child = ::fork();
    if (child == 0) {
      RemoveLeftoversOnSignals();
      const RunResult run = Command({"edit"}, script);
      WriteBytes(folder / "messages", run.err);
      ::_exit(run.status);
    }
    while (!fs::exists(folder / "started.exm") && ::waitpid(child, nullptr, WNOHANG) == 0) ::usleep(1000);
    ::usleep(500'000);
    ::kill(child, SIGINT);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 130) << status;
    const std::string messages = ReadBytes(folder / "messages");
    EXPECT_NE(messages.find("standard input:4: interrupted; the exam is unchanged\n"), std::string::npos)
        << messages;
    EXPECT_EQ(ReadBytes(folder / "exam.exm"), bytes);
  }
}

}  // namespace
}  // namespace quorvantis::test

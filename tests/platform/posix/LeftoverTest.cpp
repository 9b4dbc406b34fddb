// SPDX-License-Identifier: MIT
#include "platform/posix/Leftover.h"
#include "platform/posix/PosixFiles.h"
#include "platform/posix/PrivateFolder.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <functional>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

/// Runs `work` in a separate process until it has written a byte to the descriptor that it is given.
pid_t Start(const std::function<void(int)>& work) {
  int ends[2];
  if (::pipe(ends) != 0) std::abort();
  const pid_t child = ::fork();
  if (child == 0) {
    work(ends[1]);
    std::abort();
  }
  char byte = 0;
  EXPECT_EQ(::read(ends[0], &byte, 1), 1);
  ::close(ends[0]);
  ::close(ends[1]);
  return child;
}

int End(pid_t child, int signal) {
  ::kill(child, signal);
  int status = 0;
  EXPECT_EQ(::waitpid(child, &status, 0), child);
  return status;
}

/// A program that keeps writing to a folder until it is killed.
pid_t StartHelper(const fs::path& folder) {
  const pid_t helper = ::fork();
  if (helper != 0) return helper;
  ::setsid();
  while (true) WriteBytes(folder / "helper/file", "x");
}

/// The files of a command when a signal arrives.
[[noreturn]] void WaitForSignalWithLeftovers(const fs::path& folder, int ready) {
  RemoveLeftoversOnSignals();
  setenv("TMPDIR", folder.c_str(), 1);  // NOLINT(concurrency-mt-unsafe): a forked child has one thread
  const PrivateFolder made;
  const PrivateFolder empty;
  { const PrivateFolder gone; }
  WriteBytes(made.Path() / "TEMP/a/b/file", "x");
  fs::create_directory_symlink(folder / "kept", made.Path() / "TEMP/link");
  const pid_t helper = StartHelper(made.Path());
  const Leftover helperToo(helper);
  std::error_code error;
  const auto pending = PosixFiles().Replace(folder / "never.exm", error);
  if (pending && ::write(ready, "x", 1) == 1) ::pause();
  std::abort();
}

TEST(Leftovers, GoWithASignalThatEndsTheProcess) {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    const TemporaryFolder folder;
    WriteBytes(folder / "kept/file", "x");
    const pid_t child = Start([&](int ready) { WaitForSignalWithLeftovers(folder.Path(), ready); });
    const int status = End(child, signal);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == signal) << status;
    EXPECT_TRUE(fs::exists(folder / "kept/file")) << "behind a link";
    EXPECT_EQ(CountEntries(folder.Path()), 1);
  }
}

/// At every moment between creating something and finishing it.
TEST(Leftovers, GoWheneverTheSignalComes) {
  const TemporaryFolder folder;
  std::minstd_rand random(5);
  for (int round = 0; round < 200; ++round) {
    const pid_t child = ::fork();
    if (child == 0) {
      RemoveLeftoversOnSignals();
      // A forked child has one thread. NOLINTNEXTLINE(concurrency-mt-unsafe)
      setenv("TMPDIR", folder.Path().c_str(), 1);
      while (true) {
        const PrivateFolder made;
        std::error_code error;
        const auto pending = PosixFiles().Replace(folder / "never.exm", error);
      }
    }
    ::usleep(3000 + static_cast<useconds_t>(random() % 3000));
    ::kill(child, SIGTERM);
    ASSERT_EQ(::waitpid(child, nullptr, 0), child);
    ASSERT_TRUE(fs::is_empty(folder.Path())) << *fs::directory_iterator(folder.Path());
  }
}

TEST(Leftovers, OfAKilledProgramGoWithTheNextPrivateFolder) {
  const TemporaryFolder folder;
  setenv("TMPDIR", folder.Path().c_str(), 1);  // NOLINT(concurrency-mt-unsafe): a test has one thread
  fs::create_directory(folder / "quorvantis-other1");
  const pid_t child = Start([](int ready) {
    const PrivateFolder made;
    WriteBytes(made.Path() / "a/file", "x");
    if (::write(ready, "x", 1) == 1) ::pause();
  });
  { const PrivateFolder mine; }
  EXPECT_EQ(CountEntries(folder.Path()), 2) << "it is still in use";
  End(child, SIGKILL);
  const PrivateFolder mine;
  { const PrivateFolder another; }
  EXPECT_EQ(CountEntries(folder.Path()), 2)
      << "what is not known to be ours stays, and so does what is in use";
  EXPECT_TRUE(fs::exists(mine.Path()));
  unsetenv("TMPDIR");  // NOLINT(concurrency-mt-unsafe)
}

}  // namespace
}  // namespace quorvantis::test

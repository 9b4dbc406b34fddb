// SPDX-License-Identifier: MIT
#include "platform/posix/LinuxProcessTable.h"
#include "support/OrdinaryUser.h"
#include "support/SleepingProcess.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <optional>

namespace quorvantis::test {
namespace {

std::optional<std::u16string> ModuleOf(int id) {
  for (const RunningProcess& process : LinuxProcessTable().Processes()) {
    if (process.id == id) return process.module;
  }
  return std::nullopt;
}

TEST(LinuxProcessTable, TellsTheProgram) {
  const uid_t user = ::geteuid();
  const TemporaryFolder folder;
  const SleepingProcess liar(folder / "plain", "C:\\Office\\WINWORD.EXE");
  const SleepingProcess windows(folder / "wine64-preloader", "C:\\Office\\WINWORD.EXE");
  const SleepingProcess updated(folder / "updated");
  std::filesystem::remove(folder / "updated");
  EXPECT_EQ(ModuleOf(liar.Id()), PathToText(folder / "plain"));
  EXPECT_EQ(ModuleOf(windows.Id()), u"C:\\Office\\WINWORD.EXE");
  EXPECT_EQ(ModuleOf(updated.Id()), PathToText(folder / "updated"));
  const OrdinaryUser somebodyElse;
  EXPECT_EQ(ModuleOf(liar.Id()).has_value(), ::geteuid() == user) << "processes of others are none";
}

TEST(LinuxProcessTable, SparesTheOwnProgram) {
  const pid_t second = ::fork();
  if (second == 0) ::_exit(::pause());
  EXPECT_EQ(ModuleOf(::getpid()), std::nullopt);
  EXPECT_EQ(ModuleOf(second), std::nullopt) << "nor its other instances";
  ::kill(second, SIGKILL);
  ::waitpid(second, nullptr, 0);
}

TEST(LinuxProcessTable, EndsOnlyTheProcessThatWasFound) {
  const TemporaryFolder folder;
  SleepingProcess process(folder / "program");
  RunningProcess found{process.Id(), 0, u"/another/program"};
  LinuxProcessTable().Terminate(found);
  EXPECT_EQ(ModuleOf(process.Id()), PathToText(folder / "program")) << "its number belonged to another";
  found.module = PathToText(folder / "program");
  LinuxProcessTable().Terminate(found);
  EXPECT_TRUE(process.Ends());
}

}  // namespace
}  // namespace quorvantis::test

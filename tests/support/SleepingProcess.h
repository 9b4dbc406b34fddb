// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ProcessTable.h"
#include "text/PathText.h"

#include <csignal>
#include <filesystem>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvantis::test {

/// A harmless process of the test that runs under any name, until this object is destroyed.
class SleepingProcess {
 public:
  explicit SleepingProcess(const std::filesystem::path& program, std::string calledAs = "sleep") {
    std::filesystem::create_directories(program.parent_path());
    std::filesystem::copy_file("/bin/sleep", program);
    char seconds[] = "120";
    char* const arguments[] = {calledAs.data(), seconds, nullptr};
    if (::posix_spawn(&id_, program.c_str(), nullptr, nullptr, arguments, environ) != 0) id_ = 0;
  }
  ~SleepingProcess() {
    if (id_ != 0 && ::kill(id_, SIGKILL) == 0) ::waitpid(id_, nullptr, 0);
  }
  SleepingProcess(const SleepingProcess&) = delete;
  SleepingProcess& operator=(const SleepingProcess&) = delete;

  int Id() const { return id_; }

  /// Waits briefly for someone else to kill it.
  bool Ends() {
    constexpr int kPatience = 500;  // times 10 milliseconds
    for (int i = 0; i < kPatience && IsAlive(); ++i) ::usleep(10'000);
    return id_ == 0;
  }

  bool IsAlive() {
    if (id_ != 0 && ::waitpid(id_, nullptr, WNOHANG) == id_) id_ = 0;
    return id_ != 0;
  }

 private:
  pid_t id_ = 0;
};

/// Only the programs in one folder: a test must not kill those of its user.
class ProcessesBelow : public ProcessTable {
 public:
  ProcessesBelow(const std::filesystem::path& folder, ProcessTable& all)
      : folder_(PathToText(folder)), all_(all) {}

  std::vector<RunningProcess> Processes() override {
    std::vector<RunningProcess> processes = all_.Processes();
    std::erase_if(processes, [&](const RunningProcess& p) { return !p.module.starts_with(folder_); });
    return processes;
  }
  void Terminate(const RunningProcess& process) override { all_.Terminate(process); }

 private:
  std::u16string folder_;
  ProcessTable& all_;
};

}  // namespace quorvantis::test

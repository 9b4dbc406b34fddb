// SPDX-License-Identifier: MIT
#include "platform/programs/ChildProgram.h"

#include "platform/posix/Leftover.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <optional>
#include <sstream>
#include <string_view>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

constexpr int kLowPriority = 10;
constexpr rlim_t kLargestFile = rlim_t{1} << 30;  // what a crafted document could fill the disk with
constexpr rlim_t kMostMemory = rlim_t{4} << 30;   // and the memory; an office suite needs about a quarter
constexpr useconds_t kPatience = 20'000;          // microseconds between two looks at the child
constexpr int kCannotStart = 127;                 // as shells report it

/// The texts of an argument list or an environment in the form that `execve` takes.
class TextArray {
 public:
  explicit TextArray(std::vector<std::string> texts) : texts_(std::move(texts)) {
    for (std::string& text : texts_) pointers_.push_back(text.data());
    pointers_.push_back(nullptr);
  }
  char* const* Data() { return pointers_.data(); }

 private:
  std::vector<std::string> texts_;
  std::vector<char*> pointers_;
};

std::vector<std::string> Arguments(const ChildProgram& child) {
  std::vector<std::string> arguments{child.program.string()};
  arguments.insert(arguments.end(), child.arguments.begin(), child.arguments.end());
  return arguments;
}

std::vector<std::string> Environment(const fs::path& temporaryFolder) {
  std::vector<std::string> environment;
  for (char** variable = environ; *variable != nullptr; ++variable) {
    if (!std::string_view(*variable).starts_with("TMPDIR=")) environment.emplace_back(*variable);
  }
  environment.push_back("TMPDIR=" + temporaryFolder.string());
  return environment;
}

/// Between fork and exec only async-signal-safe calls are allowed.
[[noreturn]] void BecomeProgram(char* const* arguments, char* const* environment) {
  ::setsid();
  sigset_t none;
  ::sigemptyset(&none);
  ::sigprocmask(SIG_SETMASK, &none, nullptr);  // NOLINT(concurrency-mt-unsafe): one thread is left
  const rlimit file{kLargestFile, kLargestFile};
  const rlimit memory{kMostMemory, kMostMemory};
  ::setrlimit(RLIMIT_FSIZE, &file);
  ::setrlimit(RLIMIT_AS, &memory);
  ::setpriority(PRIO_PROCESS, 0, kLowPriority);
  const int nothing = ::open("/dev/null", O_RDWR);
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) ::dup2(nothing, stream);
  ::execve(arguments[0], arguments, environment);
  ::_exit(kCannotStart);
}

/// A started child. Goes with its whole group.
class ChildGroup {
 public:
  explicit ChildGroup(pid_t leader) : leader_(leader), leftover_(std::in_place, leader) {}
  ~ChildGroup() {
    // Before the leader is reaped nobody else can get the group's number.
    ::kill(-leader_, SIGKILL);
    ::kill(leader_, SIGKILL);  // it may not have come to lead a group yet
    leftover_.reset();
    while (::waitpid(leader_, nullptr, 0) < 0 && errno == EINTR) {
    }
  }
  ChildGroup(const ChildGroup&) = delete;
  ChildGroup& operator=(const ChildGroup&) = delete;

  /// Whether the leader has ended; it is not reaped yet then.
  bool HasEnded(siginfo_t& end) const {
    end.si_pid = 0;
    return ::waitid(P_PID, static_cast<id_t>(leader_), &end, WEXITED | WNOHANG | WNOWAIT) == 0 &&
           end.si_pid != 0;
  }

 private:
  pid_t leader_;
  std::optional<Leftover> leftover_;
};

ChildEnd EndOf(const siginfo_t& end) {
  if (end.si_code != CLD_EXITED) return ChildEnd::Failed;
  if (end.si_status == kCannotStart) return ChildEnd::NotStarted;
  return end.si_status == 0 ? ChildEnd::Succeeded : ChildEnd::Failed;
}

}  // namespace

ChildEnd RunChildProgram(const ChildProgram& child) {
  TextArray arguments(Arguments(child));
  TextArray environment(Environment(child.temporaryFolder));
  const auto deadline = std::chrono::steady_clock::now() + child.limit;
  const pid_t id = ::fork();
  if (id < 0) return ChildEnd::NotStarted;
  if (id == 0) BecomeProgram(arguments.Data(), environment.Data());
  const ChildGroup group(id);
  for (siginfo_t end{}; !group.HasEnded(end); ::usleep(kPatience)) {
    if (child.isCancelled && child.isCancelled()) return ChildEnd::Cancelled;
    if (std::chrono::steady_clock::now() > deadline) return ChildEnd::TimedOut;
  }
  siginfo_t end{};
  return group.HasEnded(end) ? EndOf(end) : ChildEnd::Failed;
}

fs::path FindProgram(const std::string& name) {
  const char* const path = std::getenv("PATH");  // NOLINT(concurrency-mt-unsafe): nothing sets it
  std::istringstream folders(path == nullptr ? "" : path);
  for (std::string folder; std::getline(folders, folder, ':');) {
    const fs::path program = fs::path(folder) / name;
    if (fs::path(folder).is_absolute() && ::access(program.c_str(), X_OK) == 0 &&
        fs::is_regular_file(program))
      return program;
  }
  return {};
}

}  // namespace quorvantis

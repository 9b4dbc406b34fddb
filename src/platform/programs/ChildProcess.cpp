// SPDX-License-Identifier: MIT
#include "platform/programs/ChildProcess.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <string_view>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace quorvantis {
namespace {

constexpr int kLowPriority = 10;
constexpr rlim_t kMostMemory = rlim_t{4} << 30;  // an office suite needs about a quarter of this
constexpr int kCannotStart = 127;                // as shells report it
constexpr std::size_t kPipeBytes = 65536;        // the capacity of a pipe

/// The texts of an argument list or an environment in the form that `execve` expects.
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

std::vector<std::string> ArgumentsOf(const ChildOrder& order) {
  std::vector<std::string> arguments{order.program.string()};
  arguments.insert(arguments.end(), order.arguments.begin(), order.arguments.end());
  return arguments;
}

std::vector<std::string> EnvironmentOf(const ChildOrder& order) {
  const bool keepsFolder = order.temporaryFolder.empty();
  std::vector<std::string> environment;
  for (char** variable = environ; *variable != nullptr; ++variable) {
    if (keepsFolder || !std::string_view(*variable).starts_with("TMPDIR="))
      environment.emplace_back(*variable);
  }
  if (!keepsFolder) environment.push_back("TMPDIR=" + order.temporaryFolder.string());
  return environment;
}

void Limit(__rlimit_resource resource, rlim_t most) {
  const rlimit limit{most, most};
  ::setrlimit(resource, &limit);
}

/// Between fork and exec only async-signal-safe calls are allowed. `output` becomes the standard output
/// unless it is negative.
[[noreturn]] void BecomeProgram(char* const* arguments, char* const* environment, const ChildOrder& order,
                                int output, pid_t parent) {
  ::setsid();
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);  // in case this program is killed and cannot end the group
  if (::getppid() != parent) ::_exit(kCannotStart);
  sigset_t none;
  ::sigemptyset(&none);
  ::sigprocmask(SIG_SETMASK, &none, nullptr);  // NOLINT(concurrency-mt-unsafe): one thread is left
  std::signal(SIGPIPE, SIG_DFL);               // event loops ignore this signal
  Limit(RLIMIT_FSIZE, order.largestFile);
  if (order.limitsMemory) Limit(RLIMIT_AS, kMostMemory);
  if (order.lowPriority) ::setpriority(PRIO_PROCESS, 0, kLowPriority);
  const int nothing = ::open("/dev/null", O_RDWR);
  ::dup2(nothing, STDIN_FILENO);
  ::dup2(output < 0 ? nothing : output, STDOUT_FILENO);
  ::dup2(nothing, STDERR_FILENO);
  ::close_range(STDERR_FILENO + 1, ~0U, 0);
  ::execve(arguments[0], arguments, environment);
  ::_exit(kCannotStart);
}

ChildEnd EndOf(const siginfo_t& end) {
  if (end.si_code != CLD_EXITED) return ChildEnd::Failed;
  if (end.si_status == kCannotStart) return ChildEnd::NotStarted;
  return end.si_status == 0 ? ChildEnd::Succeeded : ChildEnd::Failed;
}

struct Pipe {
  FileDescriptor reading;
  FileDescriptor writing;
};

/// Nothing if the system has none to give.
std::optional<Pipe> MakePipe() {
  std::array<int, 2> ends{};
  if (::pipe2(ends.data(), O_CLOEXEC) != 0) return std::nullopt;
  Pipe pipe{FileDescriptor(ends[0]), FileDescriptor(ends[1])};
  ::fcntl(ends[0], F_SETFL, O_NONBLOCK);
  return pipe;
}

}  // namespace

std::unique_ptr<ChildProcess> ChildProcess::Start(const ChildOrder& order) {
  if (order.program.empty()) return nullptr;
  TextArray arguments(ArgumentsOf(order));
  TextArray environment(EnvironmentOf(order));
  std::optional<Pipe> pipe;
  if (order.readsOutput && !(pipe = MakePipe())) return nullptr;
  const int output = pipe ? pipe->writing.Get() : -1;
  const pid_t parent = ::getpid();
  const pid_t id = ::fork();
  if (id < 0) return nullptr;
  if (id == 0) BecomeProgram(arguments.Data(), environment.Data(), order, output, parent);
  return std::unique_ptr<ChildProcess>(
      new ChildProcess(id, pipe ? std::move(pipe->reading) : FileDescriptor()));
}

ChildProcess::ChildProcess(pid_t leader, FileDescriptor output)
    : leader_(leader), output_(std::move(output)), leftover_(std::in_place, leader) {}

ChildProcess::~ChildProcess() {
  // Until the leader is reaped nobody else can get the group's number.
  ::kill(-leader_, SIGKILL);
  ::kill(leader_, SIGKILL);  // it may not lead a group yet
  leftover_.reset();
  while (::waitpid(leader_, nullptr, 0) < 0 && errno == EINTR) {
  }
}

/// Does not reap the process.
std::optional<ChildEnd> ChildProcess::End() const {
  siginfo_t end{};
  const int looked = ::waitid(P_PID, static_cast<id_t>(leader_), &end, WEXITED | WNOHANG | WNOWAIT);
  return looked == 0 && end.si_pid != 0 ? std::optional(EndOf(end)) : std::nullopt;
}

std::string ChildProcess::ReadOutput() const {
  std::string output;
  if (!output_.IsOpen()) return output;
  std::array<char, 4096> bytes{};
  while (output.size() < kPipeBytes) {
    const ssize_t count = ::read(output_.Get(), bytes.data(), bytes.size());
    if (count <= 0) break;
    output.append(bytes.data(), static_cast<std::size_t>(count));
  }
  return output;
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "platform/posix/LinuxProcessTable.h"

#include "platform/FolderEntries.h"
#include "platform/posix/FileDescriptor.h"
#include "text/PathText.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

extern "C" {  // some versions of the header do not say so themselves
#include <sys/pidfd.h>
}

namespace quorvantis {
namespace fs = std::filesystem;
namespace {

constexpr const char* kProcesses = "/proc";

/// Programs that run Windows programs. Only for these is the name believed: a process can call itself
/// anything.
constexpr std::string_view kWindowsLoaders[] = {"wine", "wine64", "wine-preloader", "wine64-preloader"};

/// The folder of a process. While open, it refers to this process and never to a later one with the same
/// number.
FileDescriptor OpenFolder(const std::string& name) {
  return FileDescriptor(::open((fs::path(kProcesses) / name).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

bool BelongsToThisUser(int folder) {
  struct stat status {};
  return ::fstat(folder, &status) == 0 && status.st_uid == ::geteuid();
}

/// Linux marks the path of a program whose file is gone, as it is after an update.
std::string WithoutDeletionMark(std::string path) {
  constexpr std::string_view kMark = " (deleted)";
  std::error_code ignored;
  if (path.ends_with(kMark) && !fs::exists(path, ignored)) path.resize(path.size() - kMark.size());
  return path;
}

/// Nothing for processes of the system itself and for those that have just ended.
std::optional<fs::path> ExecutedFile(int folder) {
  std::array<char, std::size_t{8} * 1024> target;  // twice what Linux gives
  const ssize_t length = ::readlinkat(folder, "exe", target.data(), target.size());
  if (length <= 0) return std::nullopt;
  return WithoutDeletionMark(std::string(target.data(), static_cast<std::size_t>(length)));
}

/// The program name the process was called with; truncated if very long.
std::string CalledAs(int folder) {
  std::array<char, std::size_t{8} * 1024> arguments;
  const FileDescriptor file(::openat(folder, "cmdline", O_RDONLY | O_CLOEXEC));
  const ssize_t length = file.IsOpen() ? ::read(file.Get(), arguments.data(), arguments.size()) : 0;
  const std::string_view all(arguments.data(), static_cast<std::size_t>(std::max<ssize_t>(length, 0)));
  return std::string(all.substr(0, all.find('\0')));
}

bool IsWindowsLoader(const fs::path& file) {
  return std::ranges::find(kWindowsLoaders, file.filename()) != std::end(kWindowsLoaders);
}

/// The program of a process we may end.
std::optional<std::u16string> ModuleOf(const std::string& process) {
  const FileDescriptor folder = OpenFolder(process);
  if (!folder.IsOpen() || !BelongsToThisUser(folder.Get())) return std::nullopt;
  const std::optional<fs::path> file = ExecutedFile(folder.Get());
  if (!file || file == ExecutedFile(OpenFolder("self").Get())) return std::nullopt;
  const std::string called = IsWindowsLoader(*file) ? CalledAs(folder.Get()) : std::string();
  return PathToText(called.empty() ? *file : fs::path(called));
}

std::optional<int> ProcessNumber(const std::string& name) {
  int number = 0;
  const char* const end = name.data() + name.size();
  const auto [stopped, error] = std::from_chars(name.data(), end, number);
  return error == std::errc() && stopped == end ? std::optional(number) : std::nullopt;
}

}  // namespace

std::vector<RunningProcess> LinuxProcessTable::Processes() {
  std::vector<RunningProcess> processes;
  for (const fs::path& entry : EntriesOf(kProcesses)) {
    const std::string name = entry.filename().string();
    const std::optional<int> id = ProcessNumber(name);
    std::optional<std::u16string> module = id ? ModuleOf(name) : std::nullopt;
    if (module) processes.push_back({*id, 0, *std::move(module)});
  }
  return processes;
}

void LinuxProcessTable::Terminate(const RunningProcess& process) {
  const FileDescriptor handle(::pidfd_open(process.id, 0));
  const bool kernelLacksHandles = !handle.IsOpen() && errno == ENOSYS;
  if (ModuleOf(std::to_string(process.id)) != process.module) return;  // the number has been reused
  if (handle.IsOpen()) {
    ::pidfd_send_signal(handle.Get(), SIGTERM, nullptr, 0);
  } else if (kernelLacksHandles) {
    ::kill(process.id, SIGTERM);
  }
}

}  // namespace quorvantis

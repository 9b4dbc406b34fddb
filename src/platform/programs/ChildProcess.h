// SPDX-License-Identifier: MIT
#pragma once

#include "platform/posix/FileDescriptor.h"
#include "platform/posix/Leftover.h"

#include <csignal>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace quorvantis {

/// Another program and what it is told; no shell is in between.
struct ChildOrder {
  std::filesystem::path program;  ///< full path; empty where the program is not installed
  std::vector<std::string> arguments;
  std::filesystem::path temporaryFolder{};               ///< for its temporary files; empty for the usual one
  std::uintmax_t largestFile = std::uintmax_t{1} << 30;  ///< bytes that it may write into one file
  bool readsOutput = false;                              ///< its standard output is wanted
};

enum class ChildEnd { Succeeded, Failed, NotStarted, TimedOut, Cancelled };

/// A program that was started, at low priority, with limits on memory and on files, and without input. It has
/// a process group of its own: whatever it has started ends with this object, and all of it with this program
/// (see Leftover). Nobody is told of its end; who waits for it looks.
class ChildProcess {
 public:
  /// Null when it could not be started. That the file is no program shows only later, as its end.
  static std::unique_ptr<ChildProcess> Start(const ChildOrder& order);

  /// Ends the whole group.
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  /// How it has ended: Succeeded, Failed or NotStarted. None while it runs.
  std::optional<ChildEnd> End() const;

  /// What it has written since the last call, or the beginning of that: a program that writes without end
  /// holds nobody up. All that one has left behind that has ended.
  std::string ReadOutput() const;

 private:
  ChildProcess(pid_t leader, FileDescriptor output);

  const pid_t leader_;
  const FileDescriptor output_;
  std::optional<Leftover> leftover_;
};

}  // namespace quorvantis

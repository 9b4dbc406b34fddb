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

/// A program and its arguments; no shell is involved.
struct ChildOrder {
  std::filesystem::path program;  ///< full path; empty if the program is not installed
  std::vector<std::string> arguments;
  std::filesystem::path temporaryFolder{};  ///< for its temporary files; empty for the default
  std::uintmax_t largestFile = std::uintmax_t{1}
                               << 30;  ///< limit for the size of any file that it writes, in bytes
  bool readsOutput = false;            ///< the caller wants its standard output
  bool limitsMemory = true;
  bool lowPriority = true;
};

enum class ChildEnd { Succeeded, Failed, NotStarted, TimedOut, Cancelled };

/// A child process with low priority, limits on memory and file size, and no input, unless ordered otherwise.
/// It has a process group of its own: the whole group ends with this object, and in any case with this
/// program (see Leftover). There is no notification when it ends; the caller polls. Those who wait with a
/// time limit, and so end a program that hangs, are RunChildProgram and, in the background of an event loop,
/// RunProgram (platform/convert).
class ChildProcess {
 public:
  /// Null if it could not be started. A file that is not a program only shows later, by how it ends.
  static std::unique_ptr<ChildProcess> Start(const ChildOrder& order);

  /// Kills the whole group.
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  /// How it ended: Succeeded, Failed or NotStarted. Nothing while it runs.
  std::optional<ChildEnd> End() const;

  /// Its output since the last call, limited per call, so that a program that writes without end blocks
  /// nobody. After it has ended: all remaining output.
  std::string ReadOutput() const;

 private:
  ChildProcess(pid_t leader, FileDescriptor output);

  const pid_t leader_;
  const FileDescriptor output_;
  std::optional<Leftover> leftover_;
};

}  // namespace quorvantis

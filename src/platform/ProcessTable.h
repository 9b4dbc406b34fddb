// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quorvantis {

/// A process as it was when it was found; it may have ended since.
struct RunningProcess {
  int id = 0;
  std::uint16_t task = 0;  ///< the 16-bit task in a process that hosts some; 0 for an ordinary process
  std::u16string module;   ///< full path of the program, in the syntax of the system it was made for
};

/// The programs this user runs, without this program itself, however often it runs.
class ProcessTable {
 public:
  virtual ~ProcessTable() = default;

  /// The processes whose program is known.
  virtual std::vector<RunningProcess> Processes() = 0;

  /// Asks a process to end, without waiting for it. Does nothing if it has ended meanwhile, even if its
  /// number has been reused, or if it cannot be ended.
  virtual void Terminate(const RunningProcess& process) = 0;
};

}  // namespace quorvantis

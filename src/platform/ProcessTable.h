// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quorvantis {

/// A process as it was when it was found; it may have ended since.
struct RunningProcess {
  int id = 0;
  std::uint16_t task = 0;  ///< the 16-bit task in a process that hosts such; 0 is an ordinary process
  std::u16string module;   ///< full path of the program, in the form of the system that it was made for
};

/// The programs that this user runs. The own program is none of them, however often it runs.
class ProcessTable {
 public:
  virtual ~ProcessTable() = default;

  /// Those whose program can be told.
  virtual std::vector<RunningProcess> Processes() = 0;

  /// Ends a process, without waiting for it. Nothing happens when it has ended meanwhile, even if another one
  /// has its number now, or when it cannot be ended.
  virtual void Terminate(const RunningProcess& process) = 0;
};

}  // namespace quorvantis

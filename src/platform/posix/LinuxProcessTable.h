// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ProcessTable.h"

namespace quorvantis {

/// The processes of /proc with the effective user of this one. The program is the executed file, or, if that
/// is a loader for Windows programs, what the loader was called with.
class LinuxProcessTable : public ProcessTable {
 public:
  std::vector<RunningProcess> Processes() override;

  /// Asks the process to end, so that it can save what it needs to recover.
  void Terminate(const RunningProcess& process) override;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/ExamServices.h"
#include "platform/ProcessTable.h"

#include <functional>

namespace quorvantis {

/// The running programs of the office suite: a word processor that the user has open disturbs previews and
/// exports, so the user is asked whether it may be closed.
class OfficeProcesses {
 public:
  /// Visits one process; returns whether to go on.
  using Visitor = std::function<bool(const RunningProcess& process)>;

  /// Both must outlive this.
  OfficeProcesses(ExamServices& services, ProcessTable& processes)
      : services_(services), processes_(processes) {}

  /// Visits every process of this user; each 16-bit task counts as one, if the system has any.
  void EnumerateProcesses(const Visitor& visit);

  bool IsOfficeRunning();

  /// If office programs are running, asks whether to end them, and does so on Yes. They may still be running
  /// when this returns.
  void AskCloseOffice();

 private:
  ExamServices& services_;
  ProcessTable& processes_;
};

}  // namespace quorvantis

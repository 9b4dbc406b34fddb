// SPDX-License-Identifier: MIT
#pragma once

#include "shell/office/OfficeProcesses.h"
#include "shell/office/OfficeSettings.h"

namespace quorvantis {

/// What an editor with a window does about the office suite. Who works without a window, like the command
/// line, has none and leaves the machine as it is.
struct OfficeControl {
  /// Both must outlive this.
  OfficeControl(ExamServices& services, ProcessTable& table)
      : processes(services, table), settings(services) {}

  OfficeProcesses processes;
  OfficeSettings settings;

  /// Trusts the application folder for the programs that previews open documents with, or ends that.
  void TrustApplicationFolder(bool enable) {
    settings.SetTrustedLocation(u"PowerPoint", enable);
    settings.SetTrustedLocation(u"Excel", enable);
  }
};

}  // namespace quorvantis

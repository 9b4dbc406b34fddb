// SPDX-License-Identifier: MIT
#pragma once

#include "shell/office/OfficeProcesses.h"
#include "shell/office/OfficeSettings.h"

namespace quorvantis {

/// What an editor with a window does about the office suite. Without a window, as on the command line, there
/// is none, and office programs are left alone.
struct OfficeControl {
  /// Both must outlive this.
  OfficeControl(ExamServices& services, ProcessTable& table)
      : processes(services, table), settings(services) {}

  OfficeProcesses processes;
  OfficeSettings settings;

  /// Makes the programs that open documents in previews trust the application folder, or stops that.
  void TrustApplicationFolder(bool enable) {
    settings.SetTrustedLocation(u"PowerPoint", enable);
    settings.SetTrustedLocation(u"Excel", enable);
  }
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/QtProgress.h"
#include "desktop/QtUserDialogs.h"
#include "model/LongAnswerFlags.h"
#include "platform/ExamServices.h"
#include "platform/posix/FileRegistry.h"
#include "platform/posix/IconvCodePage.h"
#include "platform/posix/LinuxProcessTable.h"
#include "platform/posix/PosixFiles.h"
#include "platform/posix/RandomIds.h"
#include "platform/posix/StandardErrorDebug.h"
#include "render/ComposedPages.h"
#include "shell/BuiltInStrings.h"
#include "shell/OfficeControl.h"

#include <filesystem>

namespace quorvantis {

/// Everything that the exam document of a desktop program uses. One for the whole run.
class DesktopWorld {
 public:
  /// `applicationFolder` is a full path.
  DesktopWorld(const std::filesystem::path& applicationFolder, bool debug);
  DesktopWorld(const DesktopWorld&) = delete;
  DesktopWorld& operator=(const DesktopWorld&) = delete;

  ExamServices& Services() { return services_; }
  const ComposedPages& Pages() const { return pages_; }
  OfficeControl& Office() { return office_; }

  /// The window over which dialogs appear from now on.
  void SetWindow(QWidget* window);

 private:
  BuiltInStrings strings_;
  QtUserDialogs dialogs_;
  QtProgress progress_;
  StandardErrorDebug debug_;
  PosixFiles files_;
  LongAnswerFlags longAnswerFlags_;
  RandomIds ids_;
  FileRegistry registry_;
  LinuxProcessTable processes_;
  ComposedPages pages_;
  IconvCodePage codePage_;
  ExamServices services_;
  OfficeControl office_;
};

}  // namespace quorvantis

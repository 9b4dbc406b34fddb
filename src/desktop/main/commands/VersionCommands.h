// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/main/commands/CheckCommands.h"
#include "desktop/versions/VersionsDlg.h"
#include "editor/ExamEditor.h"

#include <QWidget>

namespace quorvantis {

/// The command that opens the window for versions, and what the window asks for.
class VersionCommands {
 public:
  /// All must outlive this object; `window` owns the window for versions. `languageId` is that of the texts
  /// on printed sheets, 0 for the built-in ones.
  VersionCommands(ExamEditor& editor, CheckCommands& check, QWidget& window, int languageId)
      : editor_(editor), check_(check), window_(window), languageId_(languageId) {}
  VersionCommands(const VersionCommands&) = delete;
  VersionCommands& operator=(const VersionCommands&) = delete;

  /// Opens the window for the exam, which must be saved: asks whether to save it if it is not.
  void MakeVersions();

 private:
  bool HasSaved();
  VersionsServices Services() const;

  ExamEditor& editor_;
  CheckCommands& check_;
  QWidget& window_;
  int languageId_;
};

}  // namespace quorvantis

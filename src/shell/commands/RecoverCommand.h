// SPDX-License-Identifier: MIT
#pragma once

#include "editor/ExamEditor.h"
#include "recovery/RecoveredExam.h"
#include "recovery/RecoveryKeeper.h"

namespace quorvantis {

/// What to do with a recovery copy. Closing the question in any other way means Later.
enum class RecoveryAnswer { Restore, Discard, Later };

/// Asks about a recovery copy.
class RecoveryDialogs {
 public:
  virtual ~RecoveryDialogs() = default;

  virtual RecoveryAnswer AskRestore(const RecoveryCopy& copy) = 0;
};

/// Offers the recovery copies left in the application folder, newest first, until one is restored or the user
/// answers Later; the others are offered at the next start. Damaged ones are moved aside first, and the user
/// is told where they are. Runs once, in an unused editor.
class RecoverCommand {
 public:
  /// All must outlive the command.
  RecoverCommand(ExamEditor& editor, RecoveryKeeper& keeper, RecoveryDialogs& dialogs)
      : editor_(editor), keeper_(keeper), dialogs_(dialogs) {}

  /// True if an exam was restored.
  bool Run();

 private:
  bool Restore(const RecoveryCopy& copy);
  void TellDamaged(const std::filesystem::path& folder);
  ExamServices& Services() { return editor_.state.document.Services(); }

  ExamEditor& editor_;
  RecoveryKeeper& keeper_;
  RecoveryDialogs& dialogs_;
};

}  // namespace quorvantis

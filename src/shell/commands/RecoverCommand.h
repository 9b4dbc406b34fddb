// SPDX-License-Identifier: MIT
#pragma once

#include "editor/ExamEditor.h"
#include "recovery/RecoveredExam.h"
#include "recovery/RecoveryKeeper.h"

namespace quorvantis {

/// What to do with a recovery copy. A question that is closed otherwise gives Later.
enum class RecoveryAnswer { Restore, Discard, Later };

/// The question that a recovery leads to.
class RecoveryDialogs {
 public:
  virtual ~RecoveryDialogs() = default;

  virtual RecoveryAnswer AskRestore(const RecoveryCopy& copy) = 0;
};

/// Offers the recovery copies that were left in the application folder, the newest first, until one is
/// restored or the user has enough of it; the others are offered at the next start. Runs once, in an editor
/// that has not been used yet.
class RecoverCommand {
 public:
  /// All must outlive the command.
  RecoverCommand(ExamEditor& editor, RecoveryKeeper& keeper, RecoveryDialogs& dialogs)
      : editor_(editor), keeper_(keeper), dialogs_(dialogs) {}

  /// True when an exam has been restored.
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

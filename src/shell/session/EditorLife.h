// SPDX-License-Identifier: MIT
#pragma once

#include "editor/ExamEditor.h"
#include "history/History.h"
#include "recovery/RecoveryKeeper.h"
#include "shell/commands/RecoverCommand.h"
#include "shell/office/OfficeControl.h"

#include <filesystem>
#include <optional>
#include <system_error>

namespace quorvantis {

/// The life of an editor, with or without a window: the exam is assigned to this application folder, Begin
/// shows the first question, KeepRecovery keeps recovery copies of unsaved changes, and End removes the work
/// copies, however the end comes. The application folder is claimed earlier (ApplicationFolderClaim), because
/// a window needs a language before it can have an editor.
class EditorLife {
 public:
  /// All must outlive this object. Without `office`, office programs are left alone. Asks the user nothing.
  EditorLife(FrameSetExam& exam, EditorView& view, DocumentExport exportDocument, OfficeControl* office);
  EditorLife(const EditorLife&) = delete;
  EditorLife& operator=(const EditorLife&) = delete;
  ~EditorLife() { End(); }

  /// May ask the user to close office programs; then shows the first question. Call once, when the view is
  /// ready.
  void Begin();

  /// Keeps recovery copies from now on; call after Begin. The two calls below update the copy; without
  /// KeepRecovery they do nothing.
  void KeepRecovery();

  /// Call about once a second; takes milliseconds.
  void LookAfterUnsaved();
  /// When this returns the copy is up to date, if it can be written at all.
  void KeepUnsaved();

  /// Why a recovery copy that is needed is missing; no error otherwise.
  std::error_code RecoveryFailure() const;
  /// The folder that holds the recovery copies of all editors.
  std::filesystem::path RecoveryRoot() const;

  /// Offers to restore unsaved work of earlier runs. Call after KeepRecovery and before anything is done to
  /// the exam. True if an exam has been restored.
  bool OfferRecovery(RecoveryDialogs& dialogs);

  /// Unsaved changes stay as a recovery copy; then the files of the exam and of the application folder are
  /// deleted. The editor cannot be used afterwards. Further calls do nothing.
  void End();

  ExamEditor& Editor() { return editor_; }
  /// The steps to undo. Let it look after every command.
  History& Steps() { return history_; }
  const ExamEditor& Editor() const { return editor_; }
  OfficeControl* Office() const { return office_; }

 private:
  OfficeControl* office_;
  ExamEditor editor_;
  History history_;
  std::optional<RecoveryKeeper> recovery_;
  bool ended_ = false;
};

}  // namespace quorvantis

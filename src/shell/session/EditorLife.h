// SPDX-License-Identifier: MIT
#pragma once

#include "editor/ExamEditor.h"
#include "recovery/RecoveryKeeper.h"
#include "shell/commands/RecoverCommand.h"
#include "shell/office/OfficeControl.h"

#include <filesystem>
#include <optional>
#include <system_error>

namespace quorvantis {

/// The life of an editor, with a window or without: the exam is made one of this application folder, Begin
/// shows the first question, KeepRecovery has copies kept of what is not saved, and End removes the work
/// copies, however it comes to that. The application folder is claimed before (ApplicationFolderClaim),
/// because a window needs a language before it can have an editor.
class EditorLife {
 public:
  /// All must outlive this. Without `office`, office programs are left alone. Asks nothing.
  EditorLife(FrameSetExam& exam, EditorView& view, DocumentExport exportDocument, OfficeControl* office);
  EditorLife(const EditorLife&) = delete;
  EditorLife& operator=(const EditorLife&) = delete;
  ~EditorLife() { End(); }

  /// May ask the user to close office programs; then shows the first question. To be called once, when the
  /// view can show something.
  void Begin();

  /// Keeps recovery copies from now on, which is after Begin. A copy is brought up to date by the two below;
  /// without KeepRecovery they do nothing.
  void KeepRecovery();

  /// To be called about every second; takes milliseconds.
  void LookAfterUnsaved();
  /// The copy is up to date when this returns, if it can be written at all.
  void KeepUnsaved();

  /// Why there is no recovery copy, although one is needed; none otherwise.
  std::error_code RecoveryFailure() const;
  std::filesystem::path RecoveryFolder() const;

  /// Offers what earlier runs did not save; to be called after KeepRecovery and before anything is done to
  /// the exam. True when an exam has been restored.
  bool OfferRecovery(RecoveryDialogs& dialogs);

  /// What is not saved stays as a recovery copy; then the files of the exam and of the application folder go.
  /// The editor is not to be used any more. Does nothing when it is called again.
  void End();

  ExamEditor& Editor() { return editor_; }
  const ExamEditor& Editor() const { return editor_; }
  OfficeControl* Office() const { return office_; }

 private:
  OfficeControl* office_;
  ExamEditor editor_;
  std::optional<RecoveryKeeper> recovery_;
  bool ended_ = false;
};

}  // namespace quorvantis

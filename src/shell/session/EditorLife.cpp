// SPDX-License-Identifier: MIT
#include "shell/session/EditorLife.h"

#include "model/document/ExamServices.h"
#include "recovery/RecoveryFolder.h"
#include "shell/session/CloseSequence.h"
#include "shell/settings/FileSettings.h"

#include <utility>

namespace quorvantis {

EditorLife::EditorLife(FrameSetExam& exam, EditorView& view, DocumentExport exportDocument,
                       OfficeControl* office)
    : office_(office), editor_(exam, view, std::move(exportDocument)), history_(editor_) {
  exam.SetHostMode(1);
  editor_.files.SetBackups(KeepsBackups(exam.Services().applicationFolder));
  if (office_ == nullptr) return;
  office_->settings.RegisterBrowsableTypes();
  office_->settings.AllowZoneAction();
}

void EditorLife::Begin() {
  if (office_ != nullptr) office_->processes.AskCloseOffice();
  editor_.questions.LoadCurrentQuestion();
  history_.Begin();
}

void EditorLife::KeepRecovery() {
  recovery_.emplace(editor_);
  recovery_->Entered();
}

void EditorLife::LookAfterUnsaved() {
  if (recovery_) recovery_->Look();
}

void EditorLife::KeepUnsaved() {
  if (recovery_) recovery_->LookAndWait();
}

std::error_code EditorLife::RecoveryFailure() const {
  return recovery_ ? recovery_->Failure() : std::error_code();
}

std::filesystem::path EditorLife::RecoveryRoot() const {
  return quorvantis::RecoveryRoot(editor_.state.document.Services().applicationFolder);
}

bool EditorLife::OfferRecovery(RecoveryDialogs& dialogs) {
  const bool restored = recovery_ && RecoverCommand(editor_, *recovery_, dialogs).Run();
  if (restored) history_.Begin();
  return restored;
}

void EditorLife::End() {
  if (std::exchange(ended_, true)) return;
  if (recovery_) recovery_->Left(Parting::Leave);  // while the work copies still exist
  RunCloseSequence(editor_, office_);
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "editor/EditorSnapshot.h"

#include "editor/WorkCopies.h"
#include "model/document/ExamServices.h"

#include <utility>
#include <vector>

namespace quorvantis {
namespace {

/// Lies beside the folders that are named after the origin of attached files.
constexpr const char* kSetAsideFolder = ".set-aside";

/// Settings made by previews hold for the whole run, whichever exam was shown.
void KeepPreviewSettings(const FrameSetExam& latest, FrameSetExam& restored) {
  restored.previewPrefixes = latest.previewPrefixes;
  restored.pageRenderer.mediaSuppressed = latest.pageRenderer.mediaSuppressed;
  restored.attachmentPageWriter.mediaSuppressed = latest.attachmentPageWriter.mediaSuppressed;
}

}  // namespace

EditorSnapshot::EditorSnapshot(ExamEditor& editor)
    : editor_(editor),
      copies_(AttachmentWorkRoot(editor.state.document.Services().applicationFolder) / kSetAsideFolder) {}

void EditorSnapshot::Take() {
  const EditorState& state = editor_.state;
  kept_.emplace(Kept{state.document, editor_.questions.Form(), state.CurrentKind(), state.CurrentQuestion(),
                     state.FileName(), state.Modified(), state.ExamsBegun(), state.Saves()});
  copies_.SetAside(WorkCopiesOf(state.document));
}

FrameSetExam EditorSnapshot::StoredExam() const {
  FrameSetExam exam = kept_->exam;
  StoreForm(kept_->form, kept_->kind, exam.Question(kept_->currentQuestion));
  return exam;
}

void EditorSnapshot::Restore() {
  copies_.PutBack();
  Kept kept = *std::exchange(kept_, std::nullopt);
  EditorState& state = editor_.state;
  KeepPreviewSettings(state.document, kept.exam);
  editor_.changes.Replace(std::move(kept.exam));
  editor_.questions.ShowQuestion(kept.currentQuestion, kept.form, kept.kind);
  state.SetFileName(kept.fileName);
  state.MarkSaved();
  if (kept.modified || state.Saves() != kept.saves) state.MarkModified();
  copies_.Clear();
}

}  // namespace quorvantis

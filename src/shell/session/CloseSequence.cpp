// SPDX-License-Identifier: MIT
#include "shell/session/CloseSequence.h"

#include "editor/WorkCopies.h"
#include "examfile/WorkFolder.h"
#include "model/document/ExamServices.h"

namespace quorvantis {

void RunCloseSequence(ExamEditor& editor, OfficeControl* office) {
  editor.files.DeleteUnpackedFiles();
  RemoveFolder(AttachmentWorkRoot(editor.state.document.Services().applicationFolder));
  if (office != nullptr) office->TrustApplicationFolder(false);
}

}  // namespace quorvantis

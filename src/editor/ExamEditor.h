// SPDX-License-Identifier: MIT
#pragma once

#include "editor/AttachmentEditor.h"
#include "editor/EditorState.h"
#include "editor/ExamFileCommands.h"
#include "editor/QuestionEditor.h"

namespace quorvantis {

/// The editor as a whole, as the window and the command line drive it.
struct ExamEditor {
  ExamEditor(FrameSetExam& document, EditorView& view, DocumentExport exportDocument)
      : state(document, view),
        attachments(state),
        questions(state, attachments),
        files(state, questions, std::move(exportDocument)) {}

  EditorState state;
  AttachmentEditor attachments;
  QuestionEditor questions;
  ExamFileCommands files;
};

}  // namespace quorvantis

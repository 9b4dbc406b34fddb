// SPDX-License-Identifier: MIT
#pragma once

#include "editor/AttachmentEditor.h"
#include "editor/EditedExam.h"
#include "editor/EditorState.h"
#include "editor/ExamChanges.h"
#include "editor/ExamFileCommands.h"
#include "editor/FieldRewriter.h"
#include "editor/QuestionEditor.h"
#include "editor/QuestionOrder.h"

namespace quorvantis {

/// The whole editor, as the window and the command line use it.
class ExamEditor {
 public:
  /// Both must outlive the editor. From now on only the editor changes `document`.
  ExamEditor(FrameSetExam& document, EditorView& view, DocumentExport exportDocument)
      : exam_(document),
        state(document, view),
        attachments(state, exam_),
        questions(state, exam_, attachments),
        order(state, exam_, attachments, questions),
        texts(state, exam_, questions),
        files(state, exam_, questions, std::move(exportDocument)),
        changes(state, exam_, attachments) {}
  ExamEditor(const ExamEditor&) = delete;
  ExamEditor& operator=(const ExamEditor&) = delete;
  ~ExamEditor() = default;

  /// Whether the document may have changed since the last call; for the history, which is the only caller.
  bool TakeDocumentChanged() { return exam_.TakeChanged(); }

 private:
  EditedExam exam_;

 public:
  EditorState state;
  AttachmentEditor attachments;
  QuestionEditor questions;
  QuestionOrder order;
  FieldRewriter texts;
  ExamFileCommands files;
  ExamChanges changes;
};

}  // namespace quorvantis

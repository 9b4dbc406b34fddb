// SPDX-License-Identifier: MIT
#pragma once

#include "editor/AttachmentEditor.h"
#include "editor/EditedExam.h"
#include "editor/EditorState.h"

namespace quorvantis {

/// Changes to the edited exam by other parts of the program: import, recovery, score setup and the pages. To
/// change more than one field, prepare a copy of the document and hand that over. The form stays as it is,
/// including what has not been stored; only removing a question clears the list of attached files that is
/// shown.
class ExamChanges {
 public:
  /// All must outlive this object.
  ExamChanges(EditorState& state, EditedExam& exam, AttachmentEditor& attachments)
      : state_(state), exam_(exam), attachments_(attachments) {}

  /// Replaces the whole document with `exam`.
  void Replace(FrameSetExam exam) { exam_.Change() = std::move(exam); }

  /// Question numbers here run from 1 to 500.
  void SetQuestion(int number, ExamQuestion question) {
    exam_.Change().Question(number) = std::move(question);
  }

  /// Removes a question with its list of attached files; later ones move down.
  void RemoveQuestion(int number);

  /// Takes over the score mode and score ranges of `exam`. This counts as a change by the user.
  void SetScores(const ExamPaper& exam);

  void CountQuestions() { exam_.Change().CountQuestions(); }

  /// See FrameSetExam::PrefixAttachmentPaths.
  void PrefixAttachmentPaths(int on) { exam_.Change().PrefixAttachmentPaths(on); }

  void SetRenderOption(int option) { exam_.Change().SetRenderOption(option); }

  /// Keeps what the page writers noted in a copy of the document, for the pages of later commands.
  void KeepPageNotes(const FrameSetExam& pages);

 private:
  EditorState& state_;
  EditedExam& exam_;
  AttachmentEditor& attachments_;
};

}  // namespace quorvantis

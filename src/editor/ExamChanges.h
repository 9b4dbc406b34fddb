// SPDX-License-Identifier: MIT
#pragma once

#include "editor/AttachmentEditor.h"
#include "editor/EditedExam.h"
#include "editor/EditorState.h"

namespace quorvantis {

/// What other parts of the program change in the exam that is being edited: import, recovery, the score setup
/// and the pages. Whoever prepares more than one field does so in a copy of the document, and hands that
/// over. The form stays as it is, and with it what has not been stored; only removing a question empties the
/// list of attached files that is shown.
class ExamChanges {
 public:
  /// All must outlive this.
  ExamChanges(EditorState& state, EditedExam& exam, AttachmentEditor& attachments)
      : state_(state), exam_(exam), attachments_(attachments) {}

  /// Puts `exam` in the place of the whole document.
  void Replace(FrameSetExam exam) { exam_.Change() = std::move(exam); }

  /// Question numbers here are 1 to 500.
  void SetQuestion(int number, ExamQuestion question) {
    exam_.Change().Question(number) = std::move(question);
  }

  /// Removes a question with its list of attached files; those after it move down.
  void RemoveQuestion(int number);

  /// Takes the score mode and the score ranges of `exam`, which counts as a change by the user.
  void SetScores(const ExamPaper& exam);

  void CountQuestions() { exam_.Change().CountQuestions(); }

  /// See FrameSetExam::PrefixAttachmentPaths.
  void PrefixAttachmentPaths(int on) { exam_.Change().PrefixAttachmentPaths(on); }

  void SetRenderOption(int option) { exam_.Change().SetRenderOption(option); }

  /// Keeps what the writers of pages have noted in a copy of the document, for the pages of later commands.
  void KeepPageNotes(const FrameSetExam& pages);

 private:
  EditorState& state_;
  EditedExam& exam_;
  AttachmentEditor& attachments_;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "editor/AttachmentEditor.h"
#include "editor/EditedExam.h"
#include "editor/EditorState.h"
#include "editor/QuestionForm.h"
#include "model/QuestionKinds.h"

#include <string>

namespace quorvantis {

class LongAnswerFlags;

/// Editing of one question at a time: which question is shown, what its form holds, and how the form goes
/// into the document (store) and back (load). All fields are stored whatever the kind; another kind only
/// hides fields.
class QuestionEditor {
 public:
  /// All must outlive the editor.
  QuestionEditor(EditorState& state, EditedExam& exam, AttachmentEditor& attachments)
      : state_(state), exam_(exam), attachments_(attachments) {}

  const QuestionForm& Form() const { return form_; }
  std::u16string RandomCaption() const;

  /// What the user has made of a field by typing, pasting or dropping. A text longer than MaxLength is
  /// refused as a whole: the field keeps what it held and the result is false. Either way the change is
  /// reported.
  bool EditField(FormField field, std::u16string text);

  /// The user clicked the answer box `index` (0 for A to 4 for E), which now is on or off.
  void TickAnswerBox(std::size_t index, bool on);

  void StoreCurrentQuestion();
  /// The document as storing would make it, which itself stays as it is; a long answer goes into `flags`.
  FrameSetExam StoredExam(LongAnswerFlags& flags) const;
  void LoadCurrentQuestion();

  /// Shows question `number` (1 to 500); what the form held is not stored.
  void ShowQuestion(int number);
  /// Shows it as the form was at some earlier time instead.
  void ShowQuestion(int number, const QuestionForm& form, QuestionKind kind);
  /// The form with all that it holds is that of question `number` from now on; nothing is stored or loaded.
  /// Deliberate: an import leaves the question that was shown in the slot after the imported ones.
  void MoveFormTo(int number) { state_.currentQuestion_ = number; }

  void GoNext();
  void GoPrevious();
  void GoBack10();
  void GoForward10();

  /// Opens an empty question here; the one shown moves to the next number.
  void InsertHere();
  /// Deletes the question shown, with whatever was typed into it since it was stored. There is no
  /// confirmation.
  void DeleteHere();

  void SelectKind(QuestionKind kind);
  /// Decides which fields for answers are shown, and has the window show them.
  void ShowKindControls(QuestionKind kind);
  const AnswerParts& ShownKindControls() const { return shown_; }
  void CycleRandomMode();

  /// The list-separator button: prepares the answer line for one more answer.
  void AppendListSeparator();

 private:
  void StoreInto(FrameSetExam& exam, LongAnswerFlags& flags) const;
  void GoTo(int question);

  EditorState& state_;
  EditedExam& exam_;
  AttachmentEditor& attachments_;
  QuestionForm form_;
  AnswerParts shown_;
};

}  // namespace quorvantis

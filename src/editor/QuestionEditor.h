// SPDX-License-Identifier: MIT
#pragma once

#include "editor/AttachmentEditor.h"
#include "editor/EditedExam.h"
#include "editor/EditorState.h"
#include "editor/QuestionForm.h"
#include "model/QuestionKinds.h"

#include <cstddef>
#include <optional>
#include <string>
#include <utility>

namespace quorvantis {

class LongAnswerFlags;

/// Where the cursor stands in a text field.
struct FieldCursor {
  FormField field = FormField::Title;
  std::size_t position = 0;  ///< in the text of the form, in UTF-16 units
};

/// Edits one question at a time: which question is shown, what its form holds, and how the form is stored
/// into the document and loaded from it. All fields are stored whatever the kind; changing the kind only
/// hides fields.
class QuestionEditor {
 public:
  /// All must outlive the editor.
  QuestionEditor(EditorState& state, EditedExam& exam, AttachmentEditor& attachments)
      : state_(state), exam_(exam), attachments_(attachments) {}

  const QuestionForm& Form() const { return form_; }
  std::u16string RandomCaption() const;

  /// The text of a field after the user has typed, pasted or dropped. A text longer than MaxLength is refused
  /// as a whole: the field keeps its old text and the result is false. Either way the change is reported.
  bool EditField(FormField field, std::u16string text);

  /// Where the edit has left the cursor. The text alone does not tell which of two equal letters is new.
  void NoteCursor(FieldCursor cursor) { cursor_ = cursor; }
  /// The last one since the last call.
  std::optional<FieldCursor> TakeCursor() { return std::exchange(cursor_, std::nullopt); }

  /// The user clicked answer box `index` (0 for A to 4 for E), which is now on or off.
  void TickAnswerBox(std::size_t index, bool on);

  void StoreCurrentQuestion();
  /// The document as it would be after storing; the document itself does not change. A long answer is noted
  /// in `flags`.
  FrameSetExam StoredExam(LongAnswerFlags& flags) const;
  void LoadCurrentQuestion();

  /// Shows question `number` (1 to 500) without storing the form.
  void ShowQuestion(int number);
  /// The same, with the form as it was earlier.
  void ShowQuestion(int number, const QuestionForm& form, QuestionKind kind);
  /// From now on the form with all that it holds belongs to question `number`; nothing is stored or loaded.
  /// Deliberate: an import leaves the question that was shown in the slot after the imported ones.
  void MoveFormTo(int number) { state_.currentQuestion_ = number; }

  /// Stores the form and shows question `question` (1 to 500), as walking does.
  void GoTo(int question);
  void GoNext();
  void GoPrevious();
  void GoBack10();
  void GoForward10();
  /// Walks straight to question `number`; does nothing if it is shown already or there is no such slot.
  void GoToQuestion(int number);

  /// Opens an empty question here; the current one moves to the next number.
  void InsertHere();
  /// Deletes the current question, including unstored input, without confirmation.
  void DeleteHere();

  void SelectKind(QuestionKind kind);
  /// Decides which answer fields are shown, and has the window show them.
  void ShowKindControls(QuestionKind kind);
  const AnswerParts& ShownKindControls() const { return shown_; }
  void CycleRandomMode();

  /// The list-separator button: prepares the answer line for one more answer.
  void AppendListSeparator();

 private:
  void StoreInto(FrameSetExam& exam, LongAnswerFlags& flags) const;

  EditorState& state_;
  EditedExam& exam_;
  AttachmentEditor& attachments_;
  QuestionForm form_;
  AnswerParts shown_;
  std::optional<FieldCursor> cursor_;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "editor/EditedExam.h"
#include "editor/EditorState.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace quorvantis {

/// Which of the two lists.
enum class AttachedTo { Exam, Question };

/// A list of attached files as the window shows it: display names, at most one of them selected.
struct ShownAttachments {
  std::vector<std::u16string> names;
  std::vector<bool> missing;  ///< per entry: its work copy was missing when it was listed
  std::optional<std::size_t> selected;
  bool visible = false;  ///< only while it has entries

  bool IsFull() const { return names.size() >= kMaxAttachments; }

  /// Deliberate: only a list that allows several selected entries would act on this, and these lists do not.
  /// It is also the only thing that a list does with the kind of a file.
  void RequestSelection(std::size_t /*entry*/, bool /*state*/) const {}
};

/// An entry of a list and the work copy behind it.
struct AttachedFile {
  std::u16string name;         ///< the display name
  std::filesystem::path copy;  ///< empty when the entry has none
  bool hasContent = true;      ///< otherwise there is no copy, and that is not an error
};

/// The two lists of attached files (the exam's and the current question's) and the oral toggle beside the
/// question's list. Changes go into the document at once; removing and toggling do not mark the exam as
/// modified.
class AttachmentEditor {
 public:
  /// Both must outlive the editor.
  AttachmentEditor(EditorState& state, EditedExam& exam) : state_(state), exam_(exam) {}

  /// Lets the user choose a file and attaches it. Does nothing when the list already has ten entries.
  void AttachExamFile();
  void AttachQuestionFile();

  /// Attaches the file at `source`, a full path, without a dialog.
  void AttachExamFile(const std::filesystem::path& source);
  void AttachQuestionFile(const std::filesystem::path& source);

  /// Why the file attached last has no content, for the user; empty if it has. Attaching itself tells nobody:
  /// the entry is there all the same.
  std::u16string CopyProblem() const;

  void SelectExamFile(std::optional<std::size_t> index) { examList_.selected = index; }
  void SelectQuestionFile(std::optional<std::size_t> index) { questionList_.selected = index; }

  /// The Delete key in a list; does nothing without a selection. The work copy stays.
  void RemoveSelectedAttachment(AttachedTo list);

  /// 1 if the extension is that of a film or an animation, otherwise 0.
  static int IsVideoLike(std::u16string_view fileName);

  /// The selected entry, if there is one.
  std::optional<AttachedFile> SelectedExamFile() const;
  std::optional<AttachedFile> SelectedQuestionFile() const;

  /// Switches the oral flag of the current question.
  void ToggleOral();

  /// Makes the oral toggle usable while it is hidden: it takes its state from the flag of the current
  /// question.
  void ReadOralFlag();

  /// Refill a list from the document.
  void RefreshQuestionList();
  void RefreshExamList();

  /// The number for the next work copy; each is given out once.
  int TakeCopyNumber() { return ++attachmentCounter_; }

  /// Keep the lists in step when a question is deleted or inserted.
  void RemoveQuestionAttachments(int question);
  void ShiftAttachmentsForInsert(int question);

  const ShownAttachments& QuestionList() const { return questionList_; }
  const ShownAttachments& ExamList() const { return examList_; }

  /// The toggle is visible: the question is oral, its list is shown, and an entry was selected when the
  /// toggle was last refreshed.
  bool OralToggleVisible() const;
  std::u16string OralToggleCaption() const;

 private:
  ExamQuestion& ChangeCurrent() { return exam_.Change().Question(state_.CurrentQuestion()); }
  bool IsMissing(const std::u16string& copy) const;
  void Fill(ShownAttachments& list, const AttachmentList& names, const AttachmentList& paths) const;
  std::size_t AppendEntry(ShownAttachments& list, const std::u16string& name,
                          const std::filesystem::path& copy) const;
  AttachedFile Entry(const std::u16string& name, const std::u16string& copy) const;
  std::optional<std::filesystem::path> ChooseFile() const;
  std::filesystem::path MakeCopy(const std::filesystem::path& source);
  void UpdateOralToggle();

  EditorState& state_;
  EditedExam& exam_;
  ShownAttachments questionList_;
  ShownAttachments examList_;
  int attachmentCounter_ = 0;         ///< attachments in this run; never decreases, so copy names stay unique
  std::filesystem::path copyFailed_;  ///< the file that could not be copied, empty for none
  std::error_code copyFailure_;
  int oralToggleState_ = 0;
  bool oralToggleShown_ = false;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "editor/EditedExam.h"
#include "editor/EditorState.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// Which of the two lists.
enum class AttachedTo { Exam, Question };

/// A list of attached files as the window shows it: display names, at most one of them selected.
struct ShownAttachments {
  std::vector<std::u16string> names;
  std::vector<bool> missing;  ///< of each entry, whether its work copy was missing when it was listed
  std::optional<std::size_t> selected;
  bool visible = false;  ///< only while it holds entries

  bool IsFull() const { return names.size() >= kMaxAttachments; }

  /// Deliberate: only a list in which several entries can be selected would obey, and these are none. Yet it
  /// is all that a list does about the kind of a file.
  void RequestSelection(std::size_t entry, bool state) {
    if (selectsSeveral && entry < names.size()) selected = state ? std::optional(entry) : std::nullopt;
  }
  bool selectsSeveral = false;
};

/// An entry of a list and the work copy behind it.
struct AttachedFile {
  std::u16string name;         ///< the display name
  std::filesystem::path copy;  ///< empty when the entry has none
  bool hasContent = true;      ///< otherwise there is no copy, and none is missing
};

/// The two lists of attached files, the exam's and the shown question's, and the oral toggle beside the
/// latter. Changes go into the document at once; removing and toggling do not count as a change of the exam.
class AttachmentEditor {
 public:
  /// Both must outlive the editor.
  AttachmentEditor(EditorState& state, EditedExam& exam) : state_(state), exam_(exam) {}

  /// Lets the user choose a file and attaches it. Nothing happens when the list already has ten entries.
  void AttachExamFile();
  void AttachQuestionFile();

  /// Attaches the file at `source`, a full path, without asking.
  void AttachExamFile(const std::filesystem::path& source);
  void AttachQuestionFile(const std::filesystem::path& source);

  void SelectExamFile(std::optional<std::size_t> index) { examList_.selected = index; }
  void SelectQuestionFile(std::optional<std::size_t> index) { questionList_.selected = index; }

  /// The Delete key in a list; nothing happens when nothing is selected. The copied file stays.
  void RemoveSelectedAttachment(AttachedTo list);

  /// 1 for the name of a film or an animation, by its extension; else 0.
  static int IsVideoLike(std::u16string_view fileName);

  /// The selected entry; nothing when none is.
  std::optional<AttachedFile> SelectedExamFile() const;
  std::optional<AttachedFile> SelectedQuestionFile() const;

  /// Switches the oral flag of the question shown.
  void ToggleOral();

  /// Makes the oral toggle ready to be used although it does not show: its state is the flag of the question
  /// shown.
  void ReadOralFlag();

  /// Fill a list anew from the document.
  void RefreshQuestionList();
  void RefreshExamList();

  /// The number for the next work copy; no other gets it.
  int TakeCopyNumber() { return ++attachmentCounter_; }

  /// Keep the lists in step with a question that is deleted or inserted.
  void RemoveQuestionAttachments(int question);
  void ShiftAttachmentsForInsert(int question);

  const ShownAttachments& QuestionList() const { return questionList_; }
  const ShownAttachments& ExamList() const { return examList_; }

  /// The toggle can be seen: the question is oral, its list shows and an entry was selected when it last
  /// changed.
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
  int attachmentCounter_ = 0;  ///< attachments of this run; never goes back, so that copy names stay unique
  int oralToggleState_ = 0;
  bool oralToggleShown_ = false;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "editor/EditorView.h"
#include "model/document/FrameSetExam.h"

#include <filesystem>
#include <string>

namespace quorvantis {

/// The file name of an exam that has never been saved.
inline constexpr const char* kUntitled = "UnTitle";

/// No question has been loaded yet.
inline constexpr auto kNoKind = static_cast<QuestionKind>(-1);

/// What is being edited: the document, the question shown and whether there is something to save. Shared by
/// the classes of the editor; one for the window's whole life. Only they change the document (see
/// EditedExam).
class EditorState {
 public:
  /// Both must outlive the state.
  EditorState(const FrameSetExam& exam, EditorView& editorView) : document(exam), view(editorView) {}

  const FrameSetExam& document;
  EditorView& view;

  /// 1 to 500
  int CurrentQuestion() const { return currentQuestion_; }
  QuestionKind CurrentKind() const { return currentKind_; }
  const ExamQuestion& Current() const { return document.Question(currentQuestion_); }

  /// Counts the exams that the user has opened or made anew.
  int ExamsBegun() const { return examsBegun_; }
  void CountExamBegun() { ++examsBegun_; }
  /// Counts how often an exam has been saved.
  int Saves() const { return saves_; }
  void CountSave() { ++saves_; }

  bool Modified() const { return modified_; }
  bool IsUntitled() const { return fileName_ == kUntitled; }
  /// Full path of the exam file, or kUntitled.
  const std::filesystem::path& FileName() const { return fileName_; }

  /// The text for the window's title bar; " *" at its end while there is something to save.
  std::u16string WindowTitle() const;

  void MarkModified();
  /// Deliberate: the title does not tell, neither now nor when a field reports a change later. Import does
  /// it.
  void MarkModifiedQuietly() { modified_ = true; }
  /// File dialogs begin where the exam lies; after kUntitled, where the last one did.
  void SetFileName(std::filesystem::path fileName);
  /// The document is what the file holds.
  void MarkSaved();

  /// A field reports a change. It counts as MarkModified, but only after the command in hand.
  void QueueContentChanged();
  void DeliverContentChanged();

 private:
  friend class QuestionEditor;  // it alone walks, and changes the kind

  int currentQuestion_ = 1;
  QuestionKind currentKind_ = kNoKind;
  int examsBegun_ = 0;
  int saves_ = 0;
  std::filesystem::path fileName_ = kUntitled;
  bool modified_ = false;
  bool titleTells_ = false;  ///< of changes
  bool contentChangeQueued_ = false;
};

}  // namespace quorvantis

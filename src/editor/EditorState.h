// SPDX-License-Identifier: MIT
#pragma once

#include "editor/ChangeName.h"
#include "editor/EditorView.h"
#include "model/document/FrameSetExam.h"

#include <filesystem>
#include <string>
#include <utility>

namespace quorvantis {

/// The file name of an exam that has never been saved.
inline constexpr const char* kUntitled = "UnTitle";

/// No question has been loaded yet.
inline constexpr auto kNoKind = static_cast<QuestionKind>(-1);

/// What is being edited: the document, the current question, and whether there are unsaved changes. Shared by
/// the classes of one editor, and lives as long as that. It gives the document to read only: who may change
/// it has an EditedExam.
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

  /// Counts the exams that the user has opened or created.
  int ExamsBegun() const { return examsBegun_; }
  void CountExamBegun() { ++examsBegun_; }
  /// Counts the saves.
  int Saves() const { return saves_; }
  void CountSave() { ++saves_; }

  bool Modified() const { return modified_; }
  bool IsUntitled() const { return fileName_ == kUntitled; }
  /// Full path of the exam file, or kUntitled.
  const std::filesystem::path& FileName() const { return fileName_; }

  /// The text of the window's title bar; ends in " *" while there are unsaved changes.
  std::u16string WindowTitle() const;

  void MarkModified();
  /// Deliberate: the title does not show the change, neither now nor when a field reports one later. Used by
  /// import.
  void MarkModifiedQuietly() { modified_ = true; }
  /// File dialogs start in the folder of the exam; after kUntitled, where the last one did.
  void SetFileName(std::filesystem::path fileName);
  /// The document now equals the file.
  void MarkSaved();

  /// What the command that is running does. Needed only where a look at the exam before and after it would
  /// not tell.
  void NameChange(ChangeName name) { changeName_ = name; }
  /// The name since the last call; Other if none was given.
  ChangeName TakeChangeName() { return std::exchange(changeName_, {}); }

  /// A field reports a change. It counts as MarkModified, but only after the current command.
  void QueueContentChanged();
  void DeliverContentChanged();

 private:
  friend class QuestionEditor;  // the only class that changes the current question and its kind

  int currentQuestion_ = 1;
  QuestionKind currentKind_ = kNoKind;
  int examsBegun_ = 0;
  int saves_ = 0;
  std::filesystem::path fileName_ = kUntitled;
  bool modified_ = false;
  bool titleTells_ = false;  ///< the title shows changes
  bool contentChangeQueued_ = false;
  ChangeName changeName_;
};

}  // namespace quorvantis

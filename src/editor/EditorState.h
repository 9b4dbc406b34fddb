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
/// the classes of the editor; one for the window's whole life.
class EditorState {
 public:
  /// Both must outlive the state.
  EditorState(FrameSetExam& exam, EditorView& editorView) : document(exam), view(editorView) {}

  FrameSetExam& document;
  EditorView& view;
  int currentQuestion = 1;  ///< 1 to 500
  QuestionKind currentKind = kNoKind;
  int examsBegun = 0;  ///< counts the exams that the user has opened or made anew
  int saves = 0;       ///< counts how often an exam has been saved

  ExamQuestion& Current() { return document.Question(currentQuestion); }

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
  std::filesystem::path fileName_ = kUntitled;
  bool modified_ = false;
  bool titleTells_ = false;  ///< of changes
  bool contentChangeQueued_ = false;
};

}  // namespace quorvantis

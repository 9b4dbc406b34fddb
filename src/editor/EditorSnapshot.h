// SPDX-License-Identifier: MIT
#pragma once

#include "editor/ExamEditor.h"
#include "editor/SetAsideFiles.h"

#include <filesystem>
#include <optional>

namespace quorvantis {

/// The exam in an editor as it was at some time: the document, what was typed and not stored, and the work
/// copies of attached files.
class EditorSnapshot {
 public:
  /// `editor` must outlive this.
  explicit EditorSnapshot(ExamEditor& editor);

  /// Keeps the exam as it is now, in the place of an earlier one.
  void Take();

  /// Something is kept, and the user has not begun with another exam since.
  bool IsUsable() const { return kept_ && kept_->examsBegun == editor_.state.ExamsBegun(); }

  /// The kept exam as it would be with the form stored; there must be one.
  FrameSetExam StoredExam() const;

  /// Makes the editor's exam what is kept, which then is no more. It counts as modified if it did, or if what
  /// came after it has been saved.
  void Restore();

 private:
  struct Kept {
    FrameSetExam exam;
    QuestionForm form;
    QuestionKind kind;
    int currentQuestion;
    std::filesystem::path fileName;
    bool modified;
    int examsBegun;
    int saves;
  };

  ExamEditor& editor_;
  SetAsideFiles copies_;
  std::optional<Kept> kept_;
};

}  // namespace quorvantis

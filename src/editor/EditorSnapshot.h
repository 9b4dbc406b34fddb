// SPDX-License-Identifier: MIT
#pragma once

#include "editor/ExamEditor.h"
#include "editor/SetAsideFiles.h"

#include <filesystem>
#include <optional>

namespace quorvantis {

/// The exam in an editor as it was at some point: the document, text that was typed but not stored, and the
/// work copies of attached files.
class EditorSnapshot {
 public:
  /// `editor` must outlive this.
  explicit EditorSnapshot(ExamEditor& editor);

  /// Keeps the exam as it is now, replacing an earlier snapshot.
  void Take();

  /// There is a snapshot, and the user has not begun another exam since.
  bool IsUsable() const { return kept_ && kept_->examsBegun == editor_.state.ExamsBegun(); }

  /// The kept exam as it would be with the form stored. There must be a snapshot.
  FrameSetExam StoredExam() const;

  /// Restores the snapshot in the editor and discards it. The exam counts as modified if it was when the
  /// snapshot was taken, or if a later state has been saved.
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

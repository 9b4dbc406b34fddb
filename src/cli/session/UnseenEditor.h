// SPDX-License-Identifier: MIT
#pragma once

#include "editor/ExamEditor.h"
#include "editor/UnseenView.h"

namespace quorvantis::cli {

/// An editor without a window, on a loaded exam.
class UnseenEditor {
 public:
  /// `exam` must outlive it.
  explicit UnseenEditor(FrameSetExam& exam) : editor_(exam, view_, nullptr) {
    editor_.questions.LoadCurrentQuestion();
  }

  ExamEditor& Editor() { return editor_; }

 private:
  UnseenView view_;
  ExamEditor editor_;
};

}  // namespace quorvantis::cli

// SPDX-License-Identifier: MIT
#pragma once

#include "editor/ExamEditor.h"

namespace quorvantis::cli {

/// An editor without a view, on a loaded exam.
class UnseenEditor : private EditorView {
 public:
  /// `exam` must outlive it.
  explicit UnseenEditor(FrameSetExam& exam) : editor_(exam, *this, nullptr) {
    editor_.questions.LoadCurrentQuestion();
  }

  ExamEditor& Editor() { return editor_; }
  QuestionEditor& Questions() { return editor_.questions; }

 private:
  void FormLoaded() override {}
  void FormChanged() override {}
  void TitleChanged() override {}
  void PostContentChanged() override {}

  ExamEditor editor_;
};

}  // namespace quorvantis::cli

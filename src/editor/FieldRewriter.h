// SPDX-License-Identifier: MIT
#pragma once

#include "editor/EditedExam.h"
#include "editor/EditorState.h"
#include "editor/QuestionEditor.h"
#include "model/document/ExamTexts.h"

#include <vector>

namespace quorvantis {

/// Gives fields anywhere in the exam new texts, as one command of the user.
class FieldRewriter {
 public:
  /// All must outlive the rewriter.
  FieldRewriter(EditorState& state, EditedExam& exam, QuestionEditor& questions)
      : state_(state), exam_(exam), questions_(questions) {}

  /// Stores the form, makes the changes, shows the current question again and marks the exam as modified. A
  /// field is left alone if it no longer holds the text that it is said to hold, if the user cannot type it,
  /// or if the new text is longer than both the field's limit and the old text. Returns those; if none was
  /// changed, the window is not told anything.
  std::vector<FieldRewrite> Rewrite(const std::vector<FieldRewrite>& rewrites);

 private:
  bool Rewrite(const FieldRewrite& rewrite);

  EditorState& state_;
  EditedExam& exam_;
  QuestionEditor& questions_;
};

}  // namespace quorvantis

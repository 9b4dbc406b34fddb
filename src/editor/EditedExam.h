// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/FrameSetExam.h"

namespace quorvantis {

/// The right to change the exam that is being edited. Only the classes of the editor have it: everyone else
/// reads `EditorState::document` and changes it through the editor's commands or ExamChanges. So anything
/// that must know about every change can find it here.
class EditedExam {
 public:
  /// `exam` must outlive this. From now on its owner must not change it.
  explicit EditedExam(FrameSetExam& exam) : exam_(exam) {}

  const FrameSetExam& Read() const { return exam_; }
  FrameSetExam& Change() { return exam_; }

 private:
  FrameSetExam& exam_;
};

}  // namespace quorvantis

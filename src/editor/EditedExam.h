// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/FrameSetExam.h"

namespace quorvantis {

/// The right to change the exam that is being edited. The classes of the editor have it, and nobody else:
/// others read `EditorState::document` and have the editor change it, by its commands or by ExamChanges. So
/// whatever has to know of every change finds it here.
class EditedExam {
 public:
  /// `exam` must outlive this. From now on its owner leaves it alone.
  explicit EditedExam(FrameSetExam& exam) : exam_(exam) {}

  const FrameSetExam& Read() const { return exam_; }
  FrameSetExam& Change() { return exam_; }

 private:
  FrameSetExam& exam_;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/FrameSetExam.h"

#include <utility>

namespace quorvantis {

/// The right to change the exam that is being edited. Only the classes of the editor have it: everyone else
/// reads `EditorState::document` and changes it through the editor's commands or ExamChanges. So anything
/// that must know about every change can find it here.
class EditedExam {
 public:
  /// `exam` must outlive this. From now on its owner must not change it.
  explicit EditedExam(FrameSetExam& exam) : exam_(exam) {}

  const FrameSetExam& Read() const { return exam_; }
  FrameSetExam& Change() {
    changed_ = true;
    return exam_;
  }

  /// Whether someone has had the exam to change since the last call.
  bool TakeChanged() { return std::exchange(changed_, false); }

 private:
  FrameSetExam& exam_;
  bool changed_ = true;
};

}  // namespace quorvantis

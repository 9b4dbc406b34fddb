// SPDX-License-Identifier: MIT
#include "desktop/overview/ShownQuestionCommands.h"

namespace quorvantis {

void ShownQuestionCommands::ShowOverview() {
  if (!overview_) overview_ = new OverviewWindow(editor_, commands_, &window_);
  overview_->ShowMarks(marks_);
  overview_->Open();
  opened_();
}

void ShownQuestionCommands::ShowMarks(std::map<int, OverviewMark> marks) {
  marks_ = std::move(marks);
  if (overview_) overview_->ShowMarks(marks_);
}

void ShownQuestionCommands::ExamChanged() {
  if (overview_) overview_->ExamChanged();
}

bool ShownQuestionCommands::CanMoveUp() const {
  return HasQuestion() && editor_.state.CurrentQuestion() > 1;
}

bool ShownQuestionCommands::CanMoveDown() const {
  return editor_.state.CurrentQuestion() < commands_.LastQuestion();
}

}  // namespace quorvantis

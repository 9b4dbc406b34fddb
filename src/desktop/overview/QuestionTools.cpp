// SPDX-License-Identifier: MIT
#include "desktop/overview/QuestionTools.h"

namespace quorvantis {

void QuestionTools::ShowOverview() {
  if (!overview_) overview_ = new OverviewWindow(editor_, commands_, &window_);
  overview_->Open();
}

void QuestionTools::ExamChanged() {
  if (overview_) overview_->ExamChanged();
}

bool QuestionTools::CanMoveUp() const {
  return HasQuestion() && editor_.state.CurrentQuestion() > 1;
}

bool QuestionTools::CanMoveDown() const {
  return editor_.state.CurrentQuestion() < commands_.LastQuestion();
}

}  // namespace quorvantis

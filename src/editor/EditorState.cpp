// SPDX-License-Identifier: MIT
#include "editor/EditorState.h"

#include "model/document/ExamServices.h"
#include "platform/StringTable.h"
#include "platform/UserDialogs.h"
#include "platform/texts/ProgramTexts.h"
#include "text/MessageText.h"
#include "text/PathText.h"

#include <utility>

namespace quorvantis {

std::u16string EditorState::WindowTitle() const {
  const std::u16string title =
      FillMessage(document.Services().strings.Text(text_id::kWindowTitle), {PathToText(fileName_)});
  return titleTells_ ? title + u" *" : title;
}

void EditorState::MarkModified() {
  if (modified_) return;
  modified_ = titleTells_ = true;
  view.TitleChanged();
}

void EditorState::SetFileName(std::filesystem::path fileName) {
  fileName_ = std::move(fileName);
  if (!IsUntitled()) document.Services().dialogs.BeginIn(fileName_.parent_path());
  view.TitleChanged();
}

void EditorState::MarkSaved() {
  modified_ = titleTells_ = false;
  contentChangeQueued_ = false;  // the change that it would report has been saved
  view.TitleChanged();
}

void EditorState::QueueContentChanged() {
  if (std::exchange(contentChangeQueued_, true)) return;
  view.PostContentChanged();
}

void EditorState::DeliverContentChanged() {
  if (std::exchange(contentChangeQueued_, false)) MarkModified();
}

}  // namespace quorvantis

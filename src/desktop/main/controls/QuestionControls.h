// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/controls/AttachmentListBox.h"
#include "desktop/controls/CaptionButton.h"
#include "desktop/controls/MultiLineField.h"
#include "desktop/main/controls/NavigationButtons.h"
#include "editor/ExamEditor.h"
#include "platform/StringTable.h"

#include <QButtonGroup>
#include <QLabel>

namespace quorvantis {

/// The controls of the current question except its answers: number, kind, navigation, text, attached files
/// and the oral toggle.
class QuestionControls {
 public:
  /// The controls belong to `parent`; `editor` must outlive them.
  QuestionControls(ExamEditor& editor, const StringTable& strings, const Pictures& pictures, QWidget* parent);
  QuestionControls(const QuestionControls&) = delete;
  QuestionControls& operator=(const QuestionControls&) = delete;

  /// Another question is shown.
  void Load() { text->Load(); }

  /// Shows the editor's current values.
  void Refresh();

  QLabel* label;
  QLabel* number;
  QButtonGroup* kinds;
  NavigationButtons navigation;
  MultiLineField* text;
  AttachmentListBox* attachments;
  CaptionButton* oralToggle;

 private:
  void MakeKinds(const StringTable& strings, QWidget* parent);
  void MakeAttachments(const StringTable& strings, QWidget* parent);
  void MakeOralToggle(const StringTable& strings, QWidget* parent);
  void ShowMenu(const QPoint& position);
  void ShowKind();
  void ShowOralToggle();

  ExamEditor& editor_;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/AttachmentListBox.h"
#include "desktop/MultiLineField.h"
#include "editor/ExamEditor.h"
#include "platform/StringTable.h"

#include <QButtonGroup>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

#include <vector>

namespace quorvantis {

/// The controls of the question shown, its answers aside: number, kind, the way to other questions, text,
/// attached files and the oral toggle.
class QuestionControls {
 public:
  /// The controls are made inside `parent`; `editor` must outlive them.
  QuestionControls(ExamEditor& editor, const StringTable& strings, QWidget* parent);
  QuestionControls(const QuestionControls&) = delete;
  QuestionControls& operator=(const QuestionControls&) = delete;

  /// Another question is shown.
  void Load() { text->Load(); }

  /// Shows what the editor has now.
  void Refresh();

  QLabel* label;
  QLabel* number;
  QButtonGroup* kinds;
  std::vector<QToolButton*> navigation;  ///< in the order on the screen
  MultiLineField* text;
  QWidget* attachmentPanel;  ///< holds the attached files and the oral toggle
  AttachmentListBox* attachments;
  QPushButton* oralToggle;

 private:
  void MakeKinds(const StringTable& strings, QWidget* parent);
  void MakeNavigation(const StringTable& strings, QWidget* parent);
  void MakeAttachments(const StringTable& strings);
  void ShowKind();

  ExamEditor& editor_;
};

}  // namespace quorvantis

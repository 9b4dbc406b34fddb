// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/controls/AttachmentListBox.h"
#include "desktop/controls/OneLineField.h"
#include "desktop/controls/StateBox.h"
#include "editor/ExamEditor.h"
#include "platform/StringTable.h"

#include <QLabel>

namespace quorvantis {

/// The controls for the exam as a whole: title, random mode and attached files.
class ExamControls {
 public:
  /// The controls belong to `parent`; `editor` must outlive them.
  ExamControls(ExamEditor& editor, const StringTable& strings, QWidget* parent);
  ExamControls(const ExamControls&) = delete;
  ExamControls& operator=(const ExamControls&) = delete;

  /// Another question is shown.
  void Load() { title->Load(); }

  /// Shows the editor's current values.
  void Refresh();

  QLabel* titleLabel;
  OneLineField* title;
  StateBox* random;
  QLabel* attachmentsLabel;
  AttachmentListBox* attachments;

 private:
  void ShowMenu(const QPoint& position);

  ExamEditor& editor_;
};

}  // namespace quorvantis

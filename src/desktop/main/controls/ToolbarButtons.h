// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/controls/LargeButton.h"
#include "desktop/controls/Pictures.h"
#include "editor/ExamEditor.h"
#include "platform/StringTable.h"

#include <array>
#include <functional>

namespace quorvantis {

/// The large buttons at the top of the window, for the exam as a whole: its file, import, scores, attached
/// files, preview and print.
class ToolbarButtons {
 public:
  /// The commands that are not the editor's.
  struct WindowCommands {
    std::function<void()> importExam;
    std::function<void()> scoreSetup;
    std::function<void()> preview;
    std::function<void()> print;
  };

  static constexpr std::size_t kCount = 9;

  /// The buttons belong to `parent`; `editor` must outlive them.
  ToolbarButtons(ExamEditor& editor, const WindowCommands& window, const StringTable& strings,
                 const Pictures& pictures, QWidget* parent);

  const std::array<LargeButton*, kCount>& InOrder() const { return buttons_; }

  /// Removes the Import button for this run.
  void HideImport();

 private:
  std::array<LargeButton*, kCount> buttons_{};
  LargeButton* import_ = nullptr;
};

}  // namespace quorvantis

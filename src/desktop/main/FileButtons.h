// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/controls/LargeButton.h"
#include "desktop/controls/Pictures.h"
#include "editor/ExamEditor.h"
#include "platform/StringTable.h"

#include <array>
#include <functional>

namespace quorvantis {

/// The large buttons for the exam as a whole, at the top of the window.
class FileButtons {
 public:
  /// What the buttons do that the editor does not.
  struct PageCommands {
    std::function<void()> importExam;
    std::function<void()> scoreSetup;
    std::function<void()> preview;
    std::function<void()> print;
  };

  static constexpr std::size_t kCount = 9;

  /// The buttons belong to `parent`; `editor` must outlive them.
  FileButtons(ExamEditor& editor, const PageCommands& pages, const StringTable& strings,
              const Pictures& pictures, QWidget* parent);

  const std::array<LargeButton*, kCount>& InOrder() const { return buttons_; }

  /// Takes the Import button away for the run.
  void HideImport();

 private:
  std::array<LargeButton*, kCount> buttons_{};
};

}  // namespace quorvantis

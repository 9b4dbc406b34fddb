// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/controls/Pictures.h"
#include "desktop/controls/SmallButton.h"
#include "editor/ExamEditor.h"
#include "platform/StringTable.h"

#include <array>

namespace quorvantis {

/// The small buttons for moving between questions and changing their list.
class NavigationButtons {
 public:
  static constexpr std::size_t kCount = 7;

  /// The buttons belong to `parent`; `editor` must outlive them.
  NavigationButtons(ExamEditor& editor, const StringTable& strings, const Pictures& pictures,
                    QWidget* parent);

  /// Back 10, previous, next, forward 10, insert, delete, attach a file to the question.
  const std::array<SmallButton*, kCount>& InOrder() const { return buttons_; }

 private:
  std::array<SmallButton*, kCount> buttons_{};
};

}  // namespace quorvantis

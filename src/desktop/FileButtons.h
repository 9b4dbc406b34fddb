// SPDX-License-Identifier: MIT
#pragma once

#include "editor/ExamEditor.h"
#include "platform/StringTable.h"

#include <QToolButton>

#include <functional>
#include <vector>

namespace quorvantis {

/// The large buttons for the exam as a whole, at the top of the window.
class FileButtons {
 public:
  /// What the buttons do that the editor does not.
  struct PageCommands {
    std::function<void()> preview;
    std::function<void()> print;
  };

  /// The buttons belong to `parent`; `editor` must outlive them.
  FileButtons(ExamEditor& editor, const PageCommands& pages, const StringTable& strings, QWidget* parent);

  const std::vector<QToolButton*>& InOrder() const { return buttons_; }

 private:
  struct Spec;
  void Add(const Spec& spec, const StringTable& strings, QWidget* parent);

  std::vector<QToolButton*> buttons_;
};

}  // namespace quorvantis

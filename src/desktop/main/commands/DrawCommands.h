// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/bank/draw/DrawWindow.h"
#include "desktop/main/commands/BankCommands.h"
#include "desktop/overview/ShownQuestionCommands.h"
#include "editor/ExamEditor.h"
#include "platform/digest/OpenSslDigest.h"

#include <QPointer>

#include <vector>

namespace quorvantis {

/// Drawing from the bank in the main window: opens its window, and does what that asks for.
class DrawCommands {
 public:
  /// All must outlive this; `window`, the main window, owns the window for drawing. The window of `bank` gets
  /// a way to it.
  DrawCommands(ExamEditor& editor, ShownQuestionCommands& questions, BankCommands& bank, QWidget& window);
  DrawCommands(const DrawCommands&) = delete;
  DrawCommands& operator=(const DrawCommands&) = delete;

  void Open();

 private:
  DrawnInsertion Insert(const std::vector<BankQuestion>& questions);

  ExamEditor& editor_;
  ShownQuestionCommands& questions_;
  BankCommands& bank_;
  QWidget& window_;
  const OpenSslDigest digest_;
  QPointer<DrawWindow> shown_;  ///< made when it is first needed
};

}  // namespace quorvantis

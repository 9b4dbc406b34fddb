// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StringTable.h"
#include "shell/commands/RecoverCommand.h"

#include <QWidget>

namespace quorvantis {

/// Asks, over the main window, what to do with a recovery copy.
class RecoveryQuestion : public RecoveryDialogs {
 public:
  /// Both must outlive the question.
  RecoveryQuestion(const StringTable& strings, QWidget* parent) : strings_(strings), parent_(parent) {}

  RecoveryAnswer AskRestore(const RecoveryCopy& copy) override;

 private:
  const StringTable& strings_;
  QWidget* parent_;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "editor/QuestionForm.h"

#include <QCheckBox>

namespace quorvantis {

/// A check box with three states that does not change by itself: a click is reported by `clicked`, the editor
/// decides what comes next, and the box shows it.
class StateBox : public QCheckBox {
  Q_OBJECT

 public:
  using QCheckBox::QCheckBox;

  void ShowState(CheckState state);

 protected:
  void nextCheckState() override {}
};

}  // namespace quorvantis

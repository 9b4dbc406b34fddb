// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/controls/MultiLineField.h"
#include "desktop/controls/OneLineField.h"
#include "desktop/controls/SmallButton.h"
#include "desktop/controls/StateBox.h"
#include "editor/ExamEditor.h"
#include "platform/StringTable.h"

#include <QLabel>

#include <array>

namespace quorvantis {

/// The answer controls of a question. Only those for its kind are shown; the others keep their text.
class AnswerControls {
 public:
  /// The controls belong to `parent`; `editor` must outlive them.
  AnswerControls(ExamEditor& editor, const StringTable& strings, const Pictures& pictures, QWidget* parent);
  AnswerControls(const AnswerControls&) = delete;
  AnswerControls& operator=(const AnswerControls&) = delete;

  /// Another question is shown.
  void Load();

  /// Shows the editor's current values.
  void Refresh();

  /// The first field of the kind that is shown, or null.
  QWidget* FirstField() const;

  std::array<StateBox*, kOptionCount> boxes{};
  std::array<MultiLineField*, kOptionCount> options{};
  QLabel* answerLabel = nullptr;
  OneLineField* answer = nullptr;
  SmallButton* separator = nullptr;
  QLabel* essayLabel = nullptr;
  MultiLineField* essay = nullptr;

 private:
  void MakeOption(std::size_t index, const StringTable& strings, QWidget* parent);
  void MakeAnswerLine(const StringTable& strings, const Pictures& pictures, QWidget* parent);
  void MakeEssay(const StringTable& strings, QWidget* parent);
  void TickBox(std::size_t index);
  void AppendSeparator();
  void ShowControls(const AnswerParts& shown);

  ExamEditor& editor_;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/MultiLineField.h"
#include "desktop/OneLineField.h"
#include "desktop/StateBox.h"
#include "editor/ExamEditor.h"
#include "platform/StringTable.h"

#include <QLabel>
#include <QToolButton>

#include <array>

namespace quorvantis {

/// The controls for the answers to a question. Only those that fit its kind are shown; the others keep their
/// texts.
class AnswerControls {
 public:
  /// The controls are made inside `parent`; `editor` must outlive them.
  AnswerControls(ExamEditor& editor, const StringTable& strings, QWidget* parent);
  AnswerControls(const AnswerControls&) = delete;
  AnswerControls& operator=(const AnswerControls&) = delete;

  /// Another question is shown.
  void Load();

  /// Shows what the editor has now.
  void Refresh();

  QWidget* choicePanel;  ///< holds boxes and options
  std::array<StateBox*, kOptionCount> boxes{};
  std::array<MultiLineField*, kOptionCount> options{};
  QWidget* fillInPanel;  ///< holds answer line and separator button
  QLabel* answerLabel = nullptr;
  OneLineField* answer = nullptr;
  QToolButton* separator = nullptr;
  QWidget* essayPanel;  ///< holds the essay answer
  QLabel* essayLabel = nullptr;
  MultiLineField* essay = nullptr;

 private:
  void MakeOption(std::size_t index, const QString& caption);
  void MakeAnswerLine(const QString& caption, const QString& separatorTip);
  void MakeEssay(const QString& caption);
  void TickBox(std::size_t index);
  void AppendSeparator();
  void ShowKind(QuestionKind kind);

  ExamEditor& editor_;
};

}  // namespace quorvantis

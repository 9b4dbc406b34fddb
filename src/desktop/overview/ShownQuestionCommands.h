// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/overview/OverviewWindow.h"
#include "desktop/overview/WholeQuestionCommands.h"

#include <QPointer>

#include <functional>
#include <map>
#include <optional>
#include <utility>

namespace quorvantis {

/// What the main window offers for whole questions: the overview, and commands for the question that is
/// shown.
class ShownQuestionCommands {
 public:
  /// Both must outlive this, but the overview goes with `window`, the main window.
  ShownQuestionCommands(ExamEditor& editor, QWidget& window)
      : editor_(editor), window_(window), commands_(editor) {}

  void ShowOverview();
  /// Something in the editor may have changed.
  void ExamChanged();

  bool IsOverviewShown() const { return overview_ && overview_->isVisible(); }
  /// Called each time the overview is opened.
  void SetOverviewOpened(std::function<void()> opened) { opened_ = std::move(opened); }
  /// What the overview marks, also when it is opened later.
  void ShowMarks(std::map<int, OverviewMark> marks);

  void MoveUp() { commands_.MoveTo(Shown(), editor_.state.CurrentQuestion() - 1); }
  void MoveDown() { commands_.MoveTo(Shown(), editor_.state.CurrentQuestion() + 1); }
  void MoveTo() { commands_.AskAndMove(Shown(), &window_); }
  void Duplicate() { commands_.Duplicate(Shown()); }
  void Copy() { commands_.Copy(Shown()); }
  void Paste() { commands_.Paste(); }
  void InsertFromExam() { commands_.InsertFromExam(&window_); }
  QString InsertTaken(std::vector<WholeQuestion> questions, std::optional<int> after) {
    return commands_.InsertTaken(std::move(questions), after);
  }
  QString InsertDrawn(std::vector<WholeQuestion> questions) {
    return commands_.InsertDrawn(std::move(questions));
  }

  /// Whether the commands can act. The last one looks at the clipboard, which takes a moment.
  bool CanMoveUp() const;
  bool CanMoveDown() const;
  bool HasQuestion() const { return editor_.state.CurrentQuestion() <= commands_.LastQuestion(); }
  bool CanPaste() const { return commands_.CanPaste(); }

 private:
  std::vector<int> Shown() const { return {editor_.state.CurrentQuestion()}; }

  ExamEditor& editor_;
  QWidget& window_;
  WholeQuestionCommands commands_;
  std::function<void()> opened_ = [] {};
  std::map<int, OverviewMark> marks_;
  QPointer<OverviewWindow> overview_;  ///< null until it is first shown
};

}  // namespace quorvantis

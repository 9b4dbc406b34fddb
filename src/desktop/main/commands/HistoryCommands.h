// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/main/controls/AnswerControls.h"
#include "desktop/main/controls/ExamControls.h"
#include "desktop/main/controls/QuestionControls.h"
#include "history/History.h"

#include <QObject>

namespace quorvantis {

/// Undo and redo in the main window. Shows the place of a step in the fields, and has the history look after
/// every command.
class HistoryCommands : public QObject {
  Q_OBJECT

 public:
  /// All must outlive this object.
  HistoryCommands(History& history, ExamControls& exam, QuestionControls& question, AnswerControls& answers,
                  const ExamServices& services);

  void Undo() { Show(history_.Undo()); }
  void Redo() { Show(history_.Redo()); }
  bool CanUndo();
  bool CanRedo();
  /// With the name of the step.
  QString UndoCaption() const;
  QString RedoCaption() const;

  /// A command has changed something, or will have when it has ended.
  void Note();

 signals:
  /// Handled here, after the current event.
  void LookPosted();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Look();
  void EndTyping();
  void Show(const std::optional<HistorySpot>& spot);
  void ShowCursor(FormField field, std::size_t position);

  History& history_;
  ExamControls& exam_;
  QuestionControls& question_;
  AnswerControls& answers_;
  const ExamServices& services_;
  bool lookPosted_ = false;
};

}  // namespace quorvantis

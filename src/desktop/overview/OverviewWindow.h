// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/overview/OverviewFilterLine.h"
#include "desktop/overview/OverviewModel.h"
#include "desktop/overview/OverviewTable.h"
#include "desktop/overview/WholeQuestionCommands.h"
#include "shell/settings/WindowPlace.h"

#include <QAction>
#include <QLabel>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <map>
#include <utility>
#include <vector>

namespace quorvantis {

/// All questions of the exam in a table, beside the main window: to choose one, and to move, duplicate,
/// delete, cut, copy and paste several. It asks the editor to do things and holds no data of the exam.
class OverviewWindow : public QWidget {
  Q_OBJECT

 public:
  /// `editor` and `commands` must outlive the window, which belongs to `parent`, the main window.
  OverviewWindow(ExamEditor& editor, WholeQuestionCommands& commands, QWidget* parent);
  ~OverviewWindow() override;

  /// Shows the window, or brings it to the front.
  void Open();

  /// Marks questions for which something was found, by their numbers.
  void ShowMarks(std::map<int, OverviewMark> marks) { model_->ShowMarks(std::move(marks)); }

  /// Something in the editor may have changed. Looked at once the current event has been handled.
  void ExamChanged();

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  using Command = std::function<QString(const std::vector<int>& numbers)>;

  void MakeActions();
  void AddCommand(const char* name, int text, const QKeySequence& keys, Command command);
  bool HandleKey(QEvent& event);
  QWidget* MakeButtons();
  void ShowMenu(const QPoint& position);

  void Refresh();
  void SelectShown();
  void CurrentChanged(const QModelIndex& current);
  std::vector<int> Selected() const;
  void Select(const std::vector<int>& numbers);
  void ShowCount();
  void EnableActions();

  QString MoveBy(int rows);
  void MoveBefore(int row);
  void InsertBefore(int row, const QuestionDrag::Insert& insert);
  void Run(const Command& command);

  void RestorePlace();
  void PlaceBeside(const QRect& window);
  void KeepPlace();
  QString Text(int id) const;

  ExamEditor& editor_;
  WholeQuestionCommands& commands_;
  WindowPlaceSetting setting_;
  OverviewModel* model_;
  OverviewFilterLine* filter_;
  OverviewTable* table_;
  QLabel* status_;
  QLabel* count_;
  std::vector<QAction*> needSelection_;  ///< these actions do nothing without one
  std::vector<QAction*> actions_;
  QTimer soon_;
  QTimer regularly_;
  bool refreshing_ = false;  ///< the table follows the editor, not the user
};

}  // namespace quorvantis

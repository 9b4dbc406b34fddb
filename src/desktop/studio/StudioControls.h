// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/studio/FindingsList.h"
#include "desktop/studio/MarksList.h"
#include "desktop/studio/PaperView.h"
#include "desktop/studio/QuestionListModel.h"
#include "desktop/studio/RoleBar.h"
#include "desktop/studio/RulesPanel.h"
#include "desktop/studio/TargetChoice.h"

#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QTableView>

namespace quorvantis {

/// What the window for papers shows, in its places.
class StudioControls {
 public:
  /// The controls belong to `window`. `strings` must outlive them.
  StudioControls(const StringTable& strings, QWidget* window);
  StudioControls(const StudioControls&) = delete;
  StudioControls& operator=(const StudioControls&) = delete;

  /// Shows a message until the next one; screen readers announce it. An empty one removes it.
  void Tell(const QString& message);

  /// Leaves more of a small window to the paper and its questions.
  void SetCompact(bool isCompact);

  /// Shows the rules or hides them. In a small window they take the place of the roles.
  void ShowRules(bool areShown);

  QPushButton* open;
  QPushButton* paste;
  QPushButton* undo;
  QPushButton* redo;
  QPushButton* rulesButton;
  QPushButton* saveRules;
  QLabel* headline;
  RoleBar* roles;
  PaperView* paper;
  MarksList* marks;
  QTableView* questions;
  QuestionListModel* model;
  FindingsList* findings;
  RulesPanel* rules;
  TargetChoice* target;
  QLabel* targetPlace;
  QLabel* status;
  QPushButton* import;
  QPushButton* close;
  QSplitter* sides;

 private:
  QPushButton* MakeButton(const char* name, int text, QWidget* window);
  QLabel* MakeText(const char* name, QWidget* window);
  void SetUpQuestions();
  void Place(QWidget* window);
  QLayout* PlaceTop();
  void PlaceSides();
  QLayout* PlaceBottom();

  const StringTable& strings_;
  bool isCompact_ = false;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/dialogs/RangeBar.h"
#include "desktop/dialogs/RangeRow.h"
#include "platform/StringTable.h"
#include "scoring/ScoreSetup.h"
#include "scoring/SetupOwner.h"
#include "scoring/SetupSteps.h"

#include <QButtonGroup>
#include <QDialog>
#include <QGroupBox>

#include <vector>

namespace quorvantis {

/// The dialog of the score setup, over the main window. It has no rules of its own: input goes to the
/// `ScoreSetup`, and the controls show its fields.
///
/// It is modal for the main window only, so a preview can be opened and used beside it. Enter and Escape do
/// nothing, since users tend to finish typing an end with Enter.
class CScoreSetupDlg final : public QDialog {
  Q_OBJECT

 public:
  /// All must outlive the dialog.
  CScoreSetupDlg(ScoreSetup& setup, SetupOwner& owner, const StringTable& strings, QWidget* parent);

  /// OK, Cancel and the close box. A preview opened from here is closed first.
  void done(int result) override;

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QLayout* MakeModes();
  void MakeRanges();
  QLayout* MakeButtons();
  void MakeMinimumQuestions();

  RangeRow& Row(int range);
  void ShowFields();
  void ShowSums();
  void EndChanged(int range, const QString& text);
  void ScoreChanged(int range, const QString& text);
  void AddHistoryKeys();

  QString Text(int number) const;

  ScoreSetup& setup_;
  SetupSteps steps_;
  SetupOwner& owner_;
  const StringTable& strings_;
  bool loading_ = false;  ///< the fields change because the dialog writes into them
  QButtonGroup* modes_;
  QGroupBox* group_;
  RangeBar* bar_;
  std::vector<RangeRow> rows_;  ///< range 1 to 10
};

}  // namespace quorvantis

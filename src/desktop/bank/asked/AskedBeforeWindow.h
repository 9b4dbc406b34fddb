// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/bank/asked/AskedBefore.h"
#include "desktop/bank/asked/EarlierUsesModel.h"
#include "desktop/bank/asked/SharedExamsModel.h"
#include "desktop/controls/BackgroundRun.h"
#include "desktop/controls/BranchTree.h"
#include "desktop/controls/RunBar.h"
#include "shell/settings/WindowPlace.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include <functional>

namespace quorvantis {

/// What the window of what was asked before asks the program for.
struct AskedBeforeActions {
  std::function<OpenExam()> openExam;
  std::function<void(int number)> goTo;  ///< shows a question of the open exam, if there still is such a one
  std::function<void(const BankUse&)> showUse;  ///< in the window of the bank
};

/// Which questions of the open exam were asked before, where and when, and what older exams have in common
/// with it, beside the main window. Compares anew, on another thread, once the exam has not changed for a
/// moment. Closing the window hides it.
class AskedBeforeWindow : public QDialog {
  Q_OBJECT

 public:
  /// `desk` and `services` must outlive the window. It belongs to `parent`, the main window.
  AskedBeforeWindow(BankDesk& desk, const ExamServices& services, AskedBeforeActions actions,
                    QWidget* parent);
  ~AskedBeforeWindow() override;

  /// Shows the window, or brings it to the front.
  void Appear();

  /// The open exam may have changed, or another one is shown.
  void ExamChanged();

 protected:
  bool event(QEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  QPushButton* MakeButton(const char* name, int text, void (AskedBeforeWindow::*command)());
  void PlaceControls();
  void Connect();
  void Compare();
  void CompareOrCancel();
  void BankUpdated();
  void Take(AskedBefore asked);
  void ShowUses();
  void ShowState();
  QString Summary() const;
  void CurrentChanged(const QModelIndex& index);
  void GoTo(const QModelIndex& index);
  void CopyText();
  void RestorePlace();
  void KeepPlace() const;
  QString Text(int number) const;

  BankDesk& desk_;
  const StringTable& strings_;
  const AskedBeforeActions actions_;
  WindowPlaceSetting place_;
  FileDigestCache digests_;  ///< used by the run
  BackgroundRun run_;
  QTimer whenQuiet_;  ///< runs from a change of the exam on
  AskedBefore asked_;
  EarlierUsesModel uses_;
  SharedExamsModel exams_;
  BranchTree* useTree_;
  QTreeView* examTable_;
  QPushButton* copy_;
  QPushButton* again_;  ///< cancels while a comparison runs
  RunBar* bar_;
  QLabel* summary_;
  bool isSettling_ = false;  ///< the current rows change, but not by the user
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/check/ExamChecker.h"
#include "desktop/check/FindingsModel.h"
#include "desktop/controls/BranchTree.h"
#include "shell/settings/WindowPlace.h"

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include <functional>

namespace quorvantis {

/// The findings of the check, beside the main window. They follow the exam while it changes. Choosing one
/// shows its place in the main window. Closing the window hides it.
class CheckWindow : public QDialog {
  Q_OBJECT

 public:
  /// Shows a place in the main window. The exam may have changed since it was checked.
  using ShowPlace = std::function<void(const TextPlace&)>;

  /// All must outlive the window. It belongs to `parent`, the main window.
  CheckWindow(ExamChecker& checker, const ExamServices& services, ShowPlace showPlace, QWidget* parent);
  ~CheckWindow() override;

  /// Shows the window, or brings it to the front.
  void Appear();

 protected:
  bool event(QEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void PlaceControls();
  void Refresh();
  void CurrentChanged(const QModelIndex& index);
  void GoTo(const QModelIndex& index);
  void IgnoreCurrent();
  void EnableIgnore();
  QString Summary() const;
  void RestorePlace();
  void KeepPlace() const;
  QString Text(int number) const;

  ExamChecker& checker_;
  const StringTable& strings_;
  ShowPlace showPlace_;
  WindowPlaceSetting place_;
  FindingsModel model_;
  BranchTree* tree_;
  QPushButton* ignore_;
  QCheckBox* showIgnored_;
  QLabel* summary_;
  bool refreshing_ = false;  ///< the current row changes, but not by the user
};

}  // namespace quorvantis

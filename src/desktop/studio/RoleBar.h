// SPDX-License-Identifier: MIT
#pragma once

#include "learn/reading/PaperRole.h"
#include "platform/StringTable.h"

#include <QLabel>
#include <QToolButton>
#include <QWidget>

#include <vector>

namespace quorvantis {

/// The roles that a part of a paper can have: a button for each, with its key and a sample of its look, so
/// that the bar is the legend, too.
class RoleBar : public QWidget {
  Q_OBJECT

 public:
  /// `strings` must outlive the bar.
  RoleBar(const StringTable& strings, QWidget* parent);

  /// For a menu: the actions of the buttons, in their order, then the one that takes back a mark.
  QList<QAction*> Actions() const { return actions_; }

  /// With less around the buttons, for small windows.
  void SetCompact(bool isCompact);

 signals:
  void RolePressed(PaperRole role);
  void TakeBackPressed();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  QWidget* MakeButton(QAction* action);
  QAction* MakeAction(PaperRole role);
  QSize SampleSize() const;
  void ShowSamples();

  const StringTable& strings_;
  QList<QAction*> actions_;
  QToolButton* notUnderstood_;
  QLabel* caption_;
  QLabel* signs_;
  bool isCompact_ = false;
};

}  // namespace quorvantis

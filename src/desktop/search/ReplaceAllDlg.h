// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/search/HitTable.h"
#include "desktop/search/ReplacementList.h"

#include <QCheckBox>
#include <QDialog>
#include <QPushButton>

namespace quorvantis {

/// Shows what replacing everything would do, so that the user can take out what should stay.
class ReplaceAllDlg : public QDialog {
  Q_OBJECT

 public:
  /// `planned` are of `exam`; `strings` must outlive the dialog.
  ReplaceAllDlg(std::shared_ptr<const FrameSetExam> exam, std::vector<PlannedReplacement> planned,
                const StringTable& strings, QWidget* parent);

  /// What is ticked, in the order of the document.
  std::vector<PlannedReplacement> Chosen() const { return list_.Chosen(); }

 private:
  void ShowTicks();

  const StringTable& strings_;
  ReplacementList list_;
  HitTable* table_;
  QCheckBox* all_;
  QPushButton* replace_;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/dialogs/DialogText.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QProgressBar>

namespace quorvantis {

/// What shows while an import works: which document, how far it has come, and that Escape ends it. All other
/// windows take no input meanwhile.
class ImportWaitDlg : public QDialog {
  Q_OBJECT

 public:
  /// `document` is the name to show, `hint` how to cancel.
  ImportWaitDlg(const DialogText& texts, const QString& document, const QString& hint, QWidget* parent);

  void ShowPicturesRead(std::size_t done, std::size_t total);

  /// Paints the windows and looks for Escape, unless it has just done so. True once the user wants to end.
  bool IsCancelled();

  void reject() override { isCancelled_ = true; }

 private:
  void Paint();

  QProgressBar* bar_;
  QElapsedTimer sincePaint_;
  bool isCancelled_ = false;
};

}  // namespace quorvantis

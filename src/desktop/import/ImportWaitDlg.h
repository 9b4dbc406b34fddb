// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/dialogs/DialogText.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QProgressBar>

namespace quorvantis {

/// The wait window of an import: shows the document, the progress, and that Escape cancels. No other window
/// accepts input meanwhile.
class ImportWaitDlg : public QDialog {
  Q_OBJECT

 public:
  /// `document` is the name to show, `hint` how to cancel.
  ImportWaitDlg(const DialogText& texts, const QString& document, const QString& hint, QWidget* parent);

  void ShowPicturesRead(std::size_t done, std::size_t total);

  /// Paints the windows and checks for Escape, unless it has just done so. True once the user has cancelled.
  bool IsCancelled();

  void reject() override { isCancelled_ = true; }

 private:
  void Paint();

  QProgressBar* bar_;
  QElapsedTimer sincePaint_;
  bool isCancelled_ = false;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/dialogs/DialogText.h"

#include <QDialog>
#include <QVBoxLayout>

namespace quorvantis {

/// A question with a button below the other for each answer. Closed otherwise, it gives the result 0.
class ChoiceDlg : public QDialog {
 protected:
  /// `name` is the object's.
  ChoiceDlg(const char* name, const DialogText& texts, QWidget* parent);

  /// Adds the button of that control, which ends the dialog with the result `answer`.
  void Offer(int control, int answer);

 private:
  DialogText texts_;
  QVBoxLayout* layout_;
};

}  // namespace quorvantis

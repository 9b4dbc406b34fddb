// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/dialogs/DialogText.h"

#include <QDialog>
#include <QVBoxLayout>

namespace quorvantis {

/// A question with a column of buttons, one for each answer. Closed in any other way, its result is 0.
class ChoiceDlg : public QDialog {
 protected:
  /// `name` is the object name.
  ChoiceDlg(const char* name, const DialogText& texts, QWidget* parent);

  /// Adds the button of that control, which closes the dialog with the result `answer`.
  void Offer(int control, int answer);

 private:
  DialogText texts_;
  QVBoxLayout* layout_;
};

}  // namespace quorvantis

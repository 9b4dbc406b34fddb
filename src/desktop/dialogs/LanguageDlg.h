// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StringTable.h"
#include "shell/language/LanguageChoice.h"

#include <QComboBox>
#include <QDialog>
#include <QPushButton>

namespace quorvantis {

/// The language dialog, which opens at every start. A selection takes effect at once; OK and Enter only close
/// the dialog, Escape does nothing, and closing the window cancels.
class LanguageDlg final : public QDialog {
  Q_OBJECT

 public:
  /// `choice` must outlive the dialog. Its texts stay those of `strings` until it is opened again.
  LanguageDlg(LanguageChoice& choice, const StringTable& strings);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QComboBox* MakeList(LanguageChoice& choice);
  QPushButton* MakeOkButton(const QString& text);
};

}  // namespace quorvantis

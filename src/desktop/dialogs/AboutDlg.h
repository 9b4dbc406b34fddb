// SPDX-License-Identifier: MIT
#pragma once

#include "platform/LanguageLibraries.h"

#include <QDialog>

namespace quorvantis {

/// The about box: the icon of its window, the name of the program, and a button that closes it.
class AboutDlg final : public QDialog {
  Q_OBJECT

 public:
  /// Without a library the texts are the built-in ones.
  explicit AboutDlg(const LanguageLibrary* language, QWidget* parent = nullptr);
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/controls/QtText.h"
#include "platform/LanguageLibraries.h"
#include "platform/texts/DialogTextNumbers.h"
#include "shell/language/BuiltInDialogTexts.h"

namespace quorvantis {

/// The texts of one dialog's controls: those of a language, or the built-in ones if it has none.
class DialogText {
 public:
  /// `language`, which may be null, must outlive this. `dialog` is a number of
  /// platform/texts/DialogTextNumbers.h.
  DialogText(const LanguageLibrary* language, int dialog) : language_(language), dialog_(dialog) {}

  QString operator()(int control) const { return ToQString(DialogTextOf(language_, dialog_, control)); }

 private:
  const LanguageLibrary* language_;
  int dialog_;
};

}  // namespace quorvantis

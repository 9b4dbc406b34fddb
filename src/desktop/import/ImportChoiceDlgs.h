// SPDX-License-Identifier: MIT
// The questions of an import, apart from the choice of the document.
#pragma once

#include "desktop/dialogs/ChoiceDlg.h"
#include "import/ImportDialogs.h"

namespace quorvantis {

/// Asks whether imported questions go into the current exam.
class ImportTargetDlg : public ChoiceDlg {
 public:
  ImportTargetDlg(const LanguageLibrary* language, QWidget* parent);

  /// Closing the dialog in any other way means a new exam.
  ImportTarget Ask() { return exec() == Accepted ? ImportTarget::Continue : ImportTarget::NewExam; }
};

/// Asks what to do with questions that an exam cannot show unchanged.
class RelatedQuestionsDlg : public ChoiceDlg {
 public:
  ChoiceResult Ask() { return static_cast<ChoiceResult>(exec()); }

 protected:
  RelatedQuestionsDlg(const char* name, const DialogText& texts, QWidget* parent);
};

/// The questions with pictures in their answers.
class PictureDlg : public RelatedQuestionsDlg {
 public:
  PictureDlg(const LanguageLibrary* language, QWidget* parent);
};

/// The questions with formulas.
class FormulaDlg : public RelatedQuestionsDlg {
 public:
  FormulaDlg(const LanguageLibrary* language, QWidget* parent);
};

}  // namespace quorvantis

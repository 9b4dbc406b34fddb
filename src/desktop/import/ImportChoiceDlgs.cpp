// SPDX-License-Identifier: MIT
#include "desktop/import/ImportChoiceDlgs.h"

namespace quorvantis {

ImportTargetDlg::ImportTargetDlg(const LanguageLibrary* language, QWidget* parent)
    : ChoiceDlg("importTarget", {language, dialog_id::kImportTarget}, parent) {
  Offer(control_id::kOk, Accepted);
  Offer(control_id::kCancel, Rejected);
}

RelatedQuestionsDlg::RelatedQuestionsDlg(const char* name, const DialogText& texts, QWidget* parent)
    : ChoiceDlg(name, texts, parent) {
  Offer(control_id::kGiveUp, static_cast<int>(ChoiceResult::GiveUp));
  Offer(control_id::kIgnoreQuestions, static_cast<int>(ChoiceResult::IgnoreRelated));
  Offer(control_id::kForceImport, static_cast<int>(ChoiceResult::Force));
}

PictureDlg::PictureDlg(const LanguageLibrary* language, QWidget* parent)
    : RelatedQuestionsDlg("pictures", {language, dialog_id::kPicture}, parent) {}

FormulaDlg::FormulaDlg(const LanguageLibrary* language, QWidget* parent)
    : RelatedQuestionsDlg("formulas", {language, dialog_id::kFormula}, parent) {}

}  // namespace quorvantis

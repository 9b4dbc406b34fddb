// SPDX-License-Identifier: MIT
// The numbers of dialogs and their controls, for LanguageLibrary::DialogText. Texts of controls that a dialog
// sets from the string table are not among them.
#pragma once

namespace quorvantis {

namespace dialog_id {

constexpr int kAbout = 100;
constexpr int kImport = 240;
constexpr int kImportWait = 241;
constexpr int kFormula = 242;
constexpr int kPicture = 243;
constexpr int kImportTarget = 244;

}  // namespace dialog_id

namespace control_id {

constexpr int kCaption = 0;
constexpr int kOk = 1;
constexpr int kCancel = 2;
constexpr int kBrowse = 1001;
constexpr int kIgnoreQuestions = 1105;
constexpr int kForceImport = 1119;
constexpr int kGiveUp = 1121;
// Labels without a number of their own, from top to bottom.
constexpr int kFirstLabel = 2000;
constexpr int kSecondLabel = 2001;

}  // namespace control_id

}  // namespace quorvantis

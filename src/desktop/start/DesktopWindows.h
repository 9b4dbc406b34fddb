// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/dialogs/QtUserDialogs.h"
#include "desktop/start/QtLanguage.h"
#include "desktop/start/WindowArguments.h"
#include "shell/settings/FileSettings.h"
#include "shell/start/CQuorvantisApp.h"

namespace quorvantis {

class CQuorvantisDlg;

/// The windows of a run. A run that only takes a screenshot of the main window shows no other window and asks
/// nothing.
class DesktopWindows : public ApplicationWindows {
 public:
  /// `options` must outlive the windows.
  explicit DesktopWindows(const WindowArguments& options);

  void LanguageApplied(const LanguageInUse& language) override;
  void ShowFailure(std::u16string_view message) override;
  bool ChooseLanguage(LanguageChoice& choice, const LanguageInUse& language) override;
  int RunMainWindow(CQuorvantisApp& application) override;

 private:
  void OpenFirstExam(CQuorvantisDlg& window);
  void RememberFolders(const ExamFolderSetting& setting);
  bool TakesPicture() const { return !options_.screenshot.isEmpty(); }
  void TakePicture(QWidget& window);

  const WindowArguments& options_;
  QtLanguage qtLanguage_;
  QtUserDialogs dialogs_;
  bool pictureTaken_ = false;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "platform/UserDialogs.h"

#include <QPointer>
#include <QWidget>

namespace quorvantis {

/// Questions and messages as dialogs over the main window.
class QtUserDialogs : public UserDialogs {
 public:
  /// The window that the dialogs belong to from now on; it may go before this object does.
  void SetParent(QWidget* parent) { parent_ = parent; }

  void ShowError(std::u16string_view text) override;
  void ShowWarning(std::u16string_view text) override;
  /// Deliberately with the icon of an error, as users of the program know it.
  void ShowDone(std::u16string_view text) override;
  bool AskYesNo(std::u16string_view question) override;
  LossAnswer AskAboutLosses(const LossQuestion& question) override;
  SaveAnswer AskSave(std::u16string_view question) override;
  std::optional<std::filesystem::path> ChooseFileToOpen(const FileDialogRequest& request) override;
  std::optional<std::filesystem::path> ChooseFileToSave(const FileDialogRequest& request) override;

 private:
  bool MayOverwrite(const QString& path);

  QPointer<QWidget> parent_;
};

}  // namespace quorvantis

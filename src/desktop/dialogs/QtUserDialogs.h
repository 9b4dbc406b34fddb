// SPDX-License-Identifier: MIT
#pragma once

#include "platform/UserDialogs.h"

#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>
#include <map>
#include <string>

namespace quorvantis {

/// Questions and messages as dialogs over the main window.
class QtUserDialogs : public UserDialogs {
 public:
  /// Sets the window that the dialogs belong to; it may go before this object.
  void SetParent(QWidget* parent) { parent_ = parent; }

  /// `keep` receives each folder that file dialogs are to begin in.
  void KeepFolders(std::function<void(const std::filesystem::path&)> keep) { keepFolder_ = std::move(keep); }

  void ShowError(std::u16string_view text) override;
  void ShowWarning(std::u16string_view text) override;
  /// Deliberately with the error icon, as users know it.
  void ShowDone(std::u16string_view text) override;
  bool AskYesNo(std::u16string_view question) override;
  bool AskYesToLose(std::u16string_view question) override;
  LossAnswer AskAboutLosses(const LossQuestion& question) override;
  SaveAnswer AskSave(std::u16string_view question) override;
  /// If the folder is gone, the user's documents folder takes its place.
  void BeginIn(const std::filesystem::path& folder) override;
  /// Begins with the kind of file chosen last and, until another folder is set, in the folder it was in.
  std::optional<std::filesystem::path> ChooseFileToOpen(const FileDialogRequest& request) override;
  std::optional<std::filesystem::path> ChooseFileToSave(const FileDialogRequest& request) override;

 private:
  /// How a dialog was last used.
  struct LastUse {
    QString filter;
    std::filesystem::path folder;
  };

  bool MayOverwrite(const QString& path);

  QPointer<QWidget> parent_;
  std::function<void(const std::filesystem::path&)> keepFolder_;
  std::filesystem::path folder_;
  std::map<std::u16string, LastUse> lastUses_;  ///< by the filters that the dialog offered
};

}  // namespace quorvantis

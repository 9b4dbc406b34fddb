// SPDX-License-Identifier: MIT
#pragma once

#include "platform/UserDialogs.h"
#include "text/Utf.h"

#include <string>

namespace quorvantis {

/// For a program that nobody sits in front of: keeps the last error, and answers every question with no.
class NoDialogs : public UserDialogs {
 public:
  /// In UTF-8; empty if there was none.
  const std::string& LastError() const { return lastError_; }

  void ShowError(std::u16string_view text) override { lastError_ = Utf16ToUtf8(text); }
  void ShowWarning(std::u16string_view) override {}
  void ShowDone(std::u16string_view) override {}
  bool AskYesNo(std::u16string_view) override { return false; }
  SaveAnswer AskSave(std::u16string_view) override { return SaveAnswer::Cancel; }
  LossAnswer AskAboutLosses(const LossQuestion&) override { return LossAnswer::GoBack; }
  void BeginIn(const std::filesystem::path&) override {}
  std::optional<std::filesystem::path> ChooseFileToOpen(const FileDialogRequest&) override { return {}; }
  std::optional<std::filesystem::path> ChooseFileToSave(const FileDialogRequest&) override { return {}; }

 private:
  std::string lastError_;
};

}  // namespace quorvantis

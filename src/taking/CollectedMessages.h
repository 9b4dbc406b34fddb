// SPDX-License-Identifier: MIT
#pragma once

#include "platform/UserDialogs.h"

#include <string>
#include <vector>

namespace quorvantis {

/// Keeps errors and warnings for the caller instead of showing them. Every question is answered with the
/// choice that does nothing.
class CollectedMessages : public UserDialogs {
 public:
  const std::vector<std::u16string>& Errors() const { return errors_; }
  const std::vector<std::u16string>& Warnings() const { return warnings_; }

  void ShowError(std::u16string_view text) override { errors_.emplace_back(text); }
  void ShowWarning(std::u16string_view text) override { warnings_.emplace_back(text); }
  void ShowDone(std::u16string_view) override {}
  bool AskYesNo(std::u16string_view) override { return false; }
  SaveAnswer AskSave(std::u16string_view) override { return SaveAnswer::Cancel; }
  LossAnswer AskAboutLosses(const LossQuestion&) override { return LossAnswer::GoBack; }
  void BeginIn(const std::filesystem::path&) override {}
  std::optional<std::filesystem::path> ChooseFileToOpen(const FileDialogRequest&) override {
    return std::nullopt;
  }
  std::optional<std::filesystem::path> ChooseFileToSave(const FileDialogRequest&) override {
    return std::nullopt;
  }

 private:
  std::vector<std::u16string> errors_;
  std::vector<std::u16string> warnings_;
};

}  // namespace quorvantis

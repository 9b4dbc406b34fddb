// SPDX-License-Identifier: MIT
#include "cli/session/ScriptedDialogs.h"

#include "text/Utf.h"

#include <utility>

namespace quorvantis::cli {

void ScriptedDialogs::ShowError(std::u16string_view text) {
  ++errorCount_;
  console_.Complain(Utf16ToUtf8(text));
}

void ScriptedDialogs::ShowWarning(std::u16string_view text) {
  console_.Complain(Utf16ToUtf8(text));
}

void ScriptedDialogs::ShowDone(std::u16string_view text) {
  console_.Complain(Utf16ToUtf8(text));
}

bool ScriptedDialogs::AskYesNo(std::u16string_view) {
  return false;
}

/// A script means what it says.
LossAnswer ScriptedDialogs::AskAboutLosses(const LossQuestion& question) {
  for (const std::u16string& loss : question.losses) console_.Complain(Utf16ToUtf8(loss));
  return LossAnswer::SaveAnyway;
}

SaveAnswer ScriptedDialogs::AskSave(std::u16string_view question) {
  if (saveAnswers_.empty()) {
    console_.Complain(Utf16ToUtf8(question) + " There is no reply, so the command is cancelled.");
    return SaveAnswer::Cancel;
  }
  const SaveAnswer answer = saveAnswers_.front();
  saveAnswers_.pop_front();
  return answer;
}

std::optional<std::filesystem::path> ScriptedDialogs::ChooseFileToOpen(const FileDialogRequest&) {
  return std::exchange(nextFile_, std::nullopt);
}

std::optional<std::filesystem::path> ScriptedDialogs::ChooseFileToSave(const FileDialogRequest&) {
  return std::exchange(nextFile_, std::nullopt);
}

}  // namespace quorvantis::cli

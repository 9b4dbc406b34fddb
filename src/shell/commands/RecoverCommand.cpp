// SPDX-License-Identifier: MIT
#include "shell/commands/RecoverCommand.h"

#include "model/document/ExamServices.h"
#include "platform/StringTable.h"
#include "platform/UserDialogs.h"
#include "platform/texts/EditorTexts.h"
#include "recovery/RecoveryFolder.h"
#include "text/MessageText.h"
#include "text/PathText.h"

namespace quorvantis {
namespace {

std::u16string Joined(const std::vector<std::u16string>& names) {
  std::u16string text;
  for (const std::u16string& name : names) text += (text.empty() ? u"" : u", ") + name;
  return text;
}

}  // namespace

void RecoverCommand::TellDamaged(const std::filesystem::path& folder) {
  const std::u16string text = Services().strings.Text(text_id::kRecoveryDamaged);
  Services().dialogs.ShowWarning(FillMessage(text, {PathToText(SetAside(folder))}));
}

bool RecoverCommand::Run() {
  const FoundRecoveryCopies found = FindRecoveryCopies(Services());
  for (const auto& folder : found.damaged) TellDamaged(folder);
  for (const RecoveryCopy& copy : found.copies) {
    const RecoveryAnswer answer = dialogs_.AskRestore(copy);
    if (answer == RecoveryAnswer::Later) return false;
    if (answer == RecoveryAnswer::Restore && Restore(copy)) return true;
    if (answer == RecoveryAnswer::Discard) RemoveRecoveryCopy(copy.folder);
  }
  return false;
}

bool RecoverCommand::Restore(const RecoveryCopy& copy) {
  const auto lost = RestoreExam(copy.folder, editor_);
  if (!lost) {
    TellDamaged(copy.folder);
    return false;
  }
  // A copy with files that could not be restored stays for another attempt.
  keeper_.Restored(lost->empty() ? copy.folder : std::filesystem::path());
  if (!lost->empty()) {
    const std::u16string text = Services().strings.Text(text_id::kRecoveryFilesLost);
    Services().dialogs.ShowWarning(FillMessage(text, {Joined(*lost)}));
  }
  return true;
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "shell/commands/SaveCopyCommand.h"

#include "examfile/AttachmentName.h"
#include "examfile/ExamFileMessages.h"
#include "platform/StringTable.h"
#include "platform/UserDialogs.h"
#include "platform/WholeFile.h"
#include "platform/texts/FileTexts.h"
#include "text/MessageText.h"

namespace quorvantis {
namespace fs = std::filesystem;

bool HasWorkCopy(const AttachedFile& file, const ExamServices& services) {
  std::error_code error;
  if (fs::is_regular_file(file.copy, error)) return true;
  services.dialogs.ShowError(FillMessage(services.strings.Text(text_id::kFileMissing), {file.name}));
  return false;
}

void SaveCopyOf(const AttachedFile& file, const ExamServices& services) {
  if (file.hasContent && !HasWorkCopy(file, services)) return;
  const auto target = services.dialogs.ChooseFileToSave({{}, {}, FileNameOf(file.name)});
  if (!target) return;
  const std::error_code failure = file.hasContent ? CopyWholeFile(services.files, file.copy, *target)
                                                  : SaveWholeFile(services.files, *target, {});
  if (failure) services.dialogs.ShowError(OpenFileError(services.strings, *target, failure));
}

}  // namespace quorvantis

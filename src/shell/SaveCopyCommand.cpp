// SPDX-License-Identifier: MIT
#include "shell/SaveCopyCommand.h"

#include "examfile/AttachmentName.h"
#include "platform/StringTable.h"
#include "platform/Texts.h"
#include "platform/UserDialogs.h"
#include "platform/WholeFile.h"
#include "text/MessageText.h"
#include "text/PathText.h"

namespace quorvantis {
namespace fs = std::filesystem;

bool HasWorkCopy(const AttachedFile& file, const ExamServices& services) {
  std::error_code error;
  if (fs::is_regular_file(file.copy, error)) return true;
  services.dialogs.ShowError(FillMessage(services.strings.Text(text_id::kFileMissing), {file.name}));
  return false;
}

void SaveCopyOf(const AttachedFile& file, const ExamServices& services) {
  if (!HasWorkCopy(file, services)) return;
  const auto target = services.dialogs.ChooseFileToSave({{}, {}, FileNameOf(file.name)});
  if (!target || !CopyWholeFile(services.files, file.copy, *target)) return;
  services.dialogs.ShowError(
      FillMessage(services.strings.Text(text_id::kOpenFileError), {PathToText(*target)}));
}

}  // namespace quorvantis

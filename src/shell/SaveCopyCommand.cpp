// SPDX-License-Identifier: MIT
#include "shell/SaveCopyCommand.h"

#include "examfile/AttachmentName.h"
#include "platform/Files.h"
#include "platform/StringTable.h"
#include "platform/Texts.h"
#include "platform/UserDialogs.h"
#include "text/MessageText.h"
#include "text/PathText.h"

#include <fstream>
#include <vector>

namespace quorvantis {
namespace fs = std::filesystem;
namespace {

constexpr std::size_t kBlock = std::size_t{512} * 1024;

bool Copy(std::istream& source, PendingFile& target) {
  std::vector<char> block(kBlock);
  while (source.read(block.data(), kBlock) || source.gcount() > 0) {
    const auto size = static_cast<std::size_t>(source.gcount());
    if (target.Write(std::as_bytes(std::span(block).first(size)))) return false;
  }
  return source.eof() && !target.Commit();
}

bool WriteCopy(const fs::path& from, const fs::path& to, Files& files) {
  std::error_code error;
  if (fs::equivalent(from, to, error)) return true;
  std::ifstream source(from, std::ios::binary);
  const std::unique_ptr<PendingFile> target = files.Replace(to, error);
  return source && target != nullptr && Copy(source, *target);
}

}  // namespace

bool HasWorkCopy(const AttachedFile& file, const ExamServices& services) {
  std::error_code error;
  if (fs::is_regular_file(file.copy, error)) return true;
  services.dialogs.ShowError(FillMessage(services.strings.Text(text_id::kFileMissing), {file.name}));
  return false;
}

void SaveCopyOf(const AttachedFile& file, const ExamServices& services) {
  if (!HasWorkCopy(file, services)) return;
  const auto target = services.dialogs.ChooseFileToSave({{}, {}, FileNameOf(file.name)});
  if (!target || WriteCopy(file.copy, *target, services.files)) return;
  services.dialogs.ShowError(
      FillMessage(services.strings.Text(text_id::kOpenFileError), {PathToText(*target)}));
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "shell/settings/FileSettings.h"

#include "platform/WholeFile.h"
#include "text/PathText.h"

namespace quorvantis {
namespace {

constexpr std::u16string_view kSection = u"files";
constexpr std::u16string_view kKey = u"ExamFolder";

}  // namespace

bool KeepsBackups(const std::filesystem::path& applicationFolder) {
  return ProfileFile(applicationFolder / kSettingsFile).Value(u"private", u"Backup") != u"0";
}

std::filesystem::path ExamFolderSetting::Read() const {
  const std::filesystem::path folder =
      TextToPath(ProfileFile(file_, &codePage_).Value(kSection, kKey).value_or(u""));
  return folder.is_absolute() ? folder : std::filesystem::path();
}

/// In quotes, since a name may end in blanks.
void ExamFolderSetting::Write(const std::filesystem::path& folder) const {
  ProfileFile profile(file_, &codePage_);
  if (!profile.IsWhole() || !profile.SetValue(kSection, kKey, u'"' + PathToText(folder) + u'"')) return;
  SaveWholeFile(files_, file_, profile.Bytes());
}

}  // namespace quorvantis

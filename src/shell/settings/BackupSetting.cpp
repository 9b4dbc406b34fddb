// SPDX-License-Identifier: MIT
#include "shell/settings/BackupSetting.h"

#include "ini/ProfileFile.h"

namespace quorvantis {

bool KeepsBackups(const std::filesystem::path& applicationFolder) {
  return ProfileFile(applicationFolder / "system.ini").Value(u"private", u"Backup") != u"0";
}

}  // namespace quorvantis

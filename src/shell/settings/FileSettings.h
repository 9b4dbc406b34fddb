// SPDX-License-Identifier: MIT
// What "system.ini" in the application folder says about exam files.
#pragma once

#include "ini/ProfileFile.h"

#include <filesystem>

namespace quorvantis {

class CodePage;
class Files;

/// Whether saving an exam keeps the version before it: the key "Backup" of section "private", where 0 stands
/// for no. Without it there are backups.
bool KeepsBackups(const std::filesystem::path& applicationFolder);

/// The folder where an exam was last opened or saved: key "ExamFolder" of section "files".
class ExamFolderSetting {
 public:
  /// All must outlive this. `codePage` is that of a file in 8-bit text.
  ExamFolderSetting(const std::filesystem::path& applicationFolder, Files& files, const CodePage& codePage)
      : file_(applicationFolder / kSettingsFile), files_(files), codePage_(codePage) {}

  /// Empty when there is none; the folder itself may be gone.
  std::filesystem::path Read() const;

  /// Failing to write it is ignored.
  void Write(const std::filesystem::path& folder) const;

 private:
  std::filesystem::path file_;
  Files& files_;
  const CodePage& codePage_;
};

}  // namespace quorvantis

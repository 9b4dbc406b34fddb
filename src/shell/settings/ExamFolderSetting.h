// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace quorvantis {

class CodePage;
class Files;

/// The folder where an exam was last opened or saved: key "ExamFolder" of section "files" of "system.ini" in
/// the application folder.
class ExamFolderSetting {
 public:
  /// All must outlive this. `codePage` is that of a file in 8-bit text.
  ExamFolderSetting(const std::filesystem::path& applicationFolder, Files& files, const CodePage& codePage)
      : file_(applicationFolder / "system.ini"), files_(files), codePage_(codePage) {}

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

// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace quorvantis {

class CodePage;
class Files;

/// The folder in which an exam was opened or saved last: key "ExamFolder" of section "files" of "system.ini"
/// in the application folder.
class ExamFolderSetting {
 public:
  /// All must outlive this. `codePage` is that of a file in 8-bit text.
  ExamFolderSetting(const std::filesystem::path& applicationFolder, Files& files, const CodePage& codePage)
      : file_(applicationFolder / "system.ini"), files_(files), codePage_(codePage) {}

  /// Empty when there is none; the folder itself may be gone.
  std::filesystem::path Read() const;

  /// What cannot be written is not kept.
  void Write(const std::filesystem::path& folder) const;

 private:
  std::filesystem::path file_;
  Files& files_;
  const CodePage& codePage_;
};

}  // namespace quorvantis

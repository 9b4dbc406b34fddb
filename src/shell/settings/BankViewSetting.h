// SPDX-License-Identifier: MIT
#pragma once

#include "ini/ProfileFile.h"

#include <filesystem>

namespace quorvantis {

class CodePage;
class Files;

/// How the window of the bank shows the chosen question: key "View" of section "bank" of "system.ini", "page"
/// or "text". Without it as text.
class BankViewSetting {
 public:
  /// All must outlive this. `codePage` is that of a file in 8-bit text.
  BankViewSetting(const std::filesystem::path& applicationFolder, Files& files, const CodePage& codePage)
      : file_(applicationFolder / kSettingsFile), files_(files), codePage_(codePage) {}

  bool IsPage() const;

  /// Failing to write it is ignored.
  void Write(bool isPage) const;

 private:
  std::filesystem::path file_;
  Files& files_;
  const CodePage& codePage_;
};

}  // namespace quorvantis

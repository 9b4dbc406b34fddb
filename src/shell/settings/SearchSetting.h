// SPDX-License-Identifier: MIT
#pragma once

#include "ini/ProfileFile.h"

#include <filesystem>

namespace quorvantis {

class CodePage;
class Files;

/// The switches of the window for find and replace, which it remembers from run to run.
struct SearchSwitches {
  bool isPattern = false;
  bool matchCase = false;
  bool wholeWords = false;
};

/// Section "search" of "system.ini" in the application folder.
class SearchSetting {
 public:
  /// All must outlive this. `codePage` is that of a file in 8-bit text.
  SearchSetting(const std::filesystem::path& applicationFolder, Files& files, const CodePage& codePage)
      : file_(applicationFolder / kSettingsFile), files_(files), codePage_(codePage) {}

  SearchSwitches Read() const;

  /// Failing to write it is ignored.
  void Write(const SearchSwitches& switches) const;

 private:
  std::filesystem::path file_;
  Files& files_;
  const CodePage& codePage_;
};

}  // namespace quorvantis

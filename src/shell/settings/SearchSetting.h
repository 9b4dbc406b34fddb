// SPDX-License-Identifier: MIT
#pragma once

#include "ini/ProfileFile.h"

#include <filesystem>
#include <optional>

namespace quorvantis {

class CodePage;
class Files;

/// What the window for find and replace remembers from run to run.
struct SearchWindowState {
  struct Place {
    int x;
    int y;
    int width;
    int height;

    bool operator==(const Place&) const = default;
  };

  std::optional<Place> place;  ///< on the screen, in device-independent pixels; whatever the file says
  bool isPattern = false;
  bool matchCase = false;
  bool wholeWords = false;

  bool operator==(const SearchWindowState&) const = default;
};

/// Section "search" of "system.ini" in the application folder.
class SearchSetting {
 public:
  /// All must outlive this. `codePage` is that of a file in 8-bit text.
  SearchSetting(const std::filesystem::path& applicationFolder, Files& files, const CodePage& codePage)
      : file_(applicationFolder / kSettingsFile), files_(files), codePage_(codePage) {}

  SearchWindowState Read() const;

  /// Failing to write it is ignored.
  void Write(const SearchWindowState& state) const;

 private:
  std::filesystem::path file_;
  Files& files_;
  const CodePage& codePage_;
};

}  // namespace quorvantis

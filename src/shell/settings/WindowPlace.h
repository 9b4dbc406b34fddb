// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace quorvantis {

class Files;

/// Where a window beside the main one was, and how wide the columns of its table were. In pixels.
struct WindowPlace {
  int x = 0;
  int y = 0;
  int width = 0;  ///< 0: unknown, and so is the height
  int height = 0;
  std::vector<int> columns = {};

  bool operator==(const WindowPlace&) const = default;
};

/// Remembers the place of a window: keys "Place" and "Columns" of a section of "system.ini".
class WindowPlaceSetting {
 public:
  /// `files` must outlive this.
  WindowPlaceSetting(const std::filesystem::path& applicationFolder, Files& files, std::u16string section);

  /// Numbers that cannot be read, or that no screen has, are left out.
  WindowPlace Read() const;

  /// Failing to write it is ignored.
  void Write(const WindowPlace& place) const;

 private:
  std::filesystem::path file_;
  Files& files_;
  std::u16string section_;
};

}  // namespace quorvantis

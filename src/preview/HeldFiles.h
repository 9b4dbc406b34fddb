// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <map>
#include <optional>

namespace quorvantis {

/// Second names for the files that a page shows. The copies of attached files go when the user opens another
/// exam; a paper that is being made of the last one still needs them.
class HeldFiles {
 public:
  /// The names are made in `parent`, in a folder of their own, which exists while files are held.
  explicit HeldFiles(std::filesystem::path parent) : parent_(std::move(parent)) {}
  ~HeldFiles() { Release(); }
  HeldFiles(const HeldFiles&) = delete;
  HeldFiles& operator=(const HeldFiles&) = delete;

  /// Holds `file`, which pages ask for as `asked`. What was held for `asked` before stays on the disk, for a
  /// conversion may still read it. Does nothing if the file is too large to be copied on a disk without
  /// links.
  void Hold(const std::filesystem::path& asked, const std::filesystem::path& file);

  /// The second name of what is held for `asked`; it has the same extension.
  std::optional<std::filesystem::path> Find(const std::filesystem::path& asked) const;

  /// Removes all second names.
  void Release();

 private:
  bool MakeFolder();

  std::filesystem::path parent_;
  std::filesystem::path folder_;  ///< empty if there is none
  std::map<std::filesystem::path, std::filesystem::path> names_;
  int last_ = 0;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <string_view>

namespace quorvantis {

/// The file name for an attachment whose display name comes from a stranger's file: its last component
/// (either separator), without control characters and lone surrogates. The result may be "", "." or "..", or
/// too long for a file system; FreeNames makes a usable name of these too.
std::u16string FileNameOf(std::u16string_view displayName);

/// Hands out paths in one folder that nothing lies at yet, none of them twice: an attachment without content
/// makes no file, and the next one of its name must not put its own there.
class FreeNames {
 public:
  explicit FreeNames(std::filesystem::path folder) : folder_(std::move(folder)) {}

  /// The folder with `fileName`, or with the first of "0", "1", … put in front of it that is free.
  std::filesystem::path PathFor(const std::u16string& fileName);

 private:
  bool IsTaken(const std::filesystem::path& path) const;

  std::filesystem::path folder_;
  std::set<std::filesystem::path> handedOut_;
  std::map<std::u16string, int> firstCandidate_;  ///< everything before it is taken; saves asking again
};

}  // namespace quorvantis

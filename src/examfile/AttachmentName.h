// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <string_view>

namespace quorvantis {

/// The file name for an attachment whose display name comes from an untrusted file: its last component
/// (either separator), without control characters and lone surrogates. The result may be "", "." or "..", or
/// too long for a file system; FreeNames makes a usable name of these too.
std::u16string FileNameOf(std::u16string_view displayName);

/// Hands out unused paths in one folder, none of them twice: an attachment without content creates no file,
/// and the next one with the same name must not take its path.
class FreeNames {
 public:
  explicit FreeNames(std::filesystem::path folder) : folder_(std::move(folder)) {}

  /// The path of `fileName` in the folder. If that is taken, the first of "0", "1", … that gives a free path
  /// is put in front of the name.
  std::filesystem::path PathFor(const std::u16string& fileName);

 private:
  bool IsTaken(const std::filesystem::path& path) const;

  std::filesystem::path folder_;
  std::set<std::filesystem::path> handedOut_;
  std::map<std::u16string, int> firstCandidate_;  ///< all earlier ones are taken; saves asking again
};

}  // namespace quorvantis

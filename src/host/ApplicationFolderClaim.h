// SPDX-License-Identifier: MIT
#pragma once

#include "platform/posix/FolderLock.h"

#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

namespace quorvantis {

/// The application folder of a run, reserved for this program while the claim lives.
class ApplicationFolderClaim {
 public:
  enum class Problem { None, NoFolder, NotWritable, InUse };

  /// Creates `folder` if it is missing, checks that it can be written, and locks it.
  explicit ApplicationFolderClaim(const std::filesystem::path& folder);

  Problem WhatIsWrong() const { return problem_; }

  /// A problem, in one line of English: the folder, what is wrong, what to do.
  std::string Explanation() const;

  /// A full path without a separator at its end.
  const std::filesystem::path& Folder() const { return folder_; }

 private:
  Problem Claim();

  std::filesystem::path folder_;
  std::optional<FolderLock> lock_;
  std::error_code writing_;
  Problem problem_;
};

}  // namespace quorvantis

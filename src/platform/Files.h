// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <span>
#include <system_error>

namespace quorvantis {

/// Stands behind the name of the previous version of a file.
inline constexpr const char* kBackupSuffix = "~";

/// The new content of a file, written beside it. Destroyed without Commit, it leaves no trace.
class PendingFile {
 public:
  virtual ~PendingFile() = default;

  /// Appends bytes. After the first failure nothing more is written and Commit fails too.
  virtual std::error_code Write(std::span<const std::byte> bytes) = 0;

  /// Makes the content durable and puts it in the place of the old file in one step. On failure the old file
  /// is as it was.
  virtual std::error_code Commit() = 0;

  /// Commit is to keep the old file beside the new one, under its name and kBackupSuffix, in the place of an
  /// older one. Costs nothing, and nothing fails because of it: where the file system cannot do it in
  /// passing, no old file is kept.
  virtual void KeepOldFile() = 0;
};

/// What the standard file system library lacks.
class Files {
 public:
  virtual ~Files() = default;

  /// Starts new content for `target`, which need not exist. Permissions are kept, and of a link its target is
  /// replaced. Null with `error` set when neither the folder nor the file can be written, or when `target` is
  /// something other than a regular file.
  virtual std::unique_ptr<PendingFile> Replace(const std::filesystem::path& target,
                                               std::error_code& error) = 0;
};

}  // namespace quorvantis

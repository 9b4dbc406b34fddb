// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <span>
#include <system_error>

namespace quorvantis {

/// Appended to the name of the previous version of a file.
inline constexpr const char* kBackupSuffix = "~";

/// The new content of a file, written beside it. Destroyed without Commit, it leaves no trace.
class PendingFile {
 public:
  virtual ~PendingFile() = default;

  /// Appends bytes. After the first failure nothing more is written and Commit fails too.
  virtual std::error_code Write(std::span<const std::byte> bytes) = 0;

  /// Makes the content durable and replaces the old file in one step. On failure the old file is unchanged.
  virtual std::error_code Commit() = 0;

  /// Makes Commit keep the old file beside the new one, as its name and kBackupSuffix, replacing an older
  /// backup. This costs nothing and never makes a save fail: where the file system does not support it, no
  /// backup is kept.
  virtual void KeepOldFile() = 0;
};

/// What std::filesystem lacks.
class Files {
 public:
  virtual ~Files() = default;

  /// Starts new content for `target`, which need not exist. Permissions are kept, and if it is a link, its
  /// target is replaced. Null with `error` set when neither the folder nor the file can be written, or when
  /// `target` is something other than a regular file.
  virtual std::unique_ptr<PendingFile> Replace(const std::filesystem::path& target,
                                               std::error_code& error) = 0;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace quorvantis {

/// A digest of bytes that come in pieces.
class RunningDigest {
 public:
  virtual ~RunningDigest() = default;

  virtual void Add(std::string_view bytes) = 0;

  /// Of all that was added, in the form of FileDigest; nothing can be added after that.
  virtual std::string Text() = 0;
};

/// SHA-256, by which two files are known to be the same, in lower-case hexadecimal: 64 digits.
class FileDigest {
 public:
  virtual ~FileDigest() = default;

  /// Of a regular file's content; empty if there is no such file or it cannot be read to its end.
  virtual std::string OfFile(const std::filesystem::path& file) const = 0;

  virtual std::string OfBytes(std::string_view bytes) const = 0;

  /// For bytes that are read for something else, too.
  virtual std::unique_ptr<RunningDigest> Begin() const = 0;
};

}  // namespace quorvantis

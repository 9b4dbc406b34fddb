// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace quorvantis {

/// SHA-256, by which two files are known to be the same, in lower-case hexadecimal: 64 digits.
class FileDigest {
 public:
  virtual ~FileDigest() = default;

  /// Of a regular file's content; empty if there is no such file or it cannot be read to its end.
  virtual std::string OfFile(const std::filesystem::path& file) const = 0;

  virtual std::string OfBytes(std::string_view bytes) const = 0;
};

}  // namespace quorvantis

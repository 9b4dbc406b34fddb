// SPDX-License-Identifier: MIT
#pragma once

#include "platform/WordDocuments.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

struct zip;

namespace quorvantis {

/// A file in a package, unpacked.
struct PackagePart {
  WordResult result = WordResult::Done;
  std::string bytes;
  std::size_t unpacked = 0;  ///< how many bytes were unpacked, also of a part that could not be read
};

/// A zip archive, read only. Nothing is ever unpacked to the disk, so names in it are harmless.
class ZipPackage {
 public:
  /// Check `Opened` before anything else.
  explicit ZipPackage(const std::filesystem::path& file);

  WordResult Opened() const { return opened_; }
  bool Has(const std::string& name) const;

  /// The names of all parts, at most `limit`.
  std::vector<std::string> Names(std::size_t limit) const;

  /// The bytes of a part as the archive claims, which may be wrong; 0 if it does not say.
  std::size_t ClaimedSize(const std::string& name) const;

  /// A part of at most `limit` bytes, whatever size the archive claims. The case of its name is ignored.
  PackagePart Read(const std::string& name, std::size_t limit) const;

 private:
  struct Closer {
    void operator()(zip* archive) const;
  };

  WordResult opened_ = WordResult::Done;
  std::unique_ptr<zip, Closer> archive_;
};

}  // namespace quorvantis

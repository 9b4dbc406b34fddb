// SPDX-License-Identifier: MIT
#pragma once

#include "bank/index/FileStamp.h"
#include "platform/FileDigest.h"

#include <functional>
#include <map>
#include <string>
#include <utility>

namespace quorvantis {

/// Remembers the digests of files until they change. For one thread at a time.
class FileDigestCache : public FileDigest {
 public:
  /// `digest` must outlive this.
  explicit FileDigestCache(const FileDigest& digest) : digest_(digest) {}

  /// From now on a digest is given up when this, which may be empty, says so; it is empty then.
  void SetCancelled(std::function<bool()> isCancelled) { isCancelled_ = std::move(isCancelled); }

  std::string OfFile(const std::filesystem::path& file) const override;
  std::string OfBytes(std::string_view bytes) const override { return digest_.OfBytes(bytes); }
  std::unique_ptr<RunningDigest> Begin() const override { return digest_.Begin(); }

 private:
  std::string Read(const std::filesystem::path& file) const;

  const FileDigest& digest_;
  std::function<bool()> isCancelled_;
  mutable std::map<std::filesystem::path, std::pair<FileStamp, std::string>> known_;
};

}  // namespace quorvantis

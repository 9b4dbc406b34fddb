// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct zip;
struct zip_source;

namespace quorvantis {

/// Makes a zip archive in memory. The same parts make the same bytes.
class ZipWriter {
 public:
  ZipWriter();
  ~ZipWriter();
  ZipWriter(const ZipWriter&) = delete;
  ZipWriter& operator=(const ZipWriter&) = delete;

  /// Adds a part. Bytes that are compressed already are stored as they are.
  void Add(const std::string& name, std::string bytes, bool isCompressed = false);

  /// The archive; empty if it could not be made. To be called once.
  std::string Finish();

 private:
  std::vector<std::unique_ptr<std::string>> parts_;  // until the archive is written
  zip_source* archiveSource_ = nullptr;
  zip* archive_ = nullptr;
};

}  // namespace quorvantis

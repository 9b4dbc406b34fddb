// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FileDigest.h"

namespace quorvantis {

/// By OpenSSL, which uses the instructions of the processor.
class OpenSslDigest : public FileDigest {
 public:
  std::string OfFile(const std::filesystem::path& file) const override;
  std::string OfBytes(std::string_view bytes) const override;
  std::unique_ptr<RunningDigest> Begin() const override;
};

}  // namespace quorvantis

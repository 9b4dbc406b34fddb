// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Files.h"

namespace quorvantis {

/// Files of a POSIX system. New content is written to a hidden file in the target's folder, flushed to the
/// disk and renamed over the target. Where the folder cannot be written but the file can, the content is
/// collected in the folder for temporary files and then copied over the old one, after reserving the disk
/// space.
class PosixFiles : public Files {
 public:
  std::unique_ptr<PendingFile> Replace(const std::filesystem::path& target, std::error_code& error) override;
};

}  // namespace quorvantis

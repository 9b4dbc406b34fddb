// SPDX-License-Identifier: MIT
// The one file of a recovery copy that is not an attached file: a snapshot of the exam, its time, and which
// link belongs to which work copy. A checksum detects damage.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace quorvantis {

/// The numbers of links by the paths of the work copies that they were made of.
using RecoveryLinks = std::map<std::u16string, int>;

struct RecoveryFile {
  std::int64_t time = 0;  ///< seconds since 1970, UTC
  RecoveryLinks links;
  std::string content;  ///< of the snapshot
};

std::string ComposeRecoveryFile(const RecoveryFile& file);

/// Nothing when the bytes are something else.
std::optional<RecoveryFile> ParseRecoveryFile(std::string_view bytes);

}  // namespace quorvantis

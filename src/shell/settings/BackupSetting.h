// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace quorvantis {

/// Whether saving an exam keeps the previous version: the key "Backup" of section "private" in "system.ini";
/// 0 means no. The default is yes.
bool KeepsBackups(const std::filesystem::path& applicationFolder);

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace quorvantis {

/// Whether saving an exam keeps the version before it: the key "Backup" of section "private" in "system.ini",
/// where 0 stands for no. Without it there are backups.
bool KeepsBackups(const std::filesystem::path& applicationFolder);

}  // namespace quorvantis

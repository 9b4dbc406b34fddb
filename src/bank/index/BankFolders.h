// SPDX-License-Identifier: MIT
// The list of the bank's folders: a text file with a path on each line, in which line ends and "%" of a path
// are written as "%0A" and "%25".
#pragma once

#include "platform/Files.h"

#include <filesystem>
#include <system_error>
#include <vector>

namespace quorvantis {

/// In the order of the file; empty if there is none.
std::vector<std::filesystem::path> ReadBankFolders(const std::filesystem::path& file);

std::error_code WriteBankFolders(Files& files, const std::filesystem::path& file,
                                 const std::vector<std::filesystem::path>& folders);

/// Whether `path` is `folder` or lies somewhere below it. Both are full paths without links.
bool LiesIn(const std::filesystem::path& path, const std::filesystem::path& folder);

}  // namespace quorvantis

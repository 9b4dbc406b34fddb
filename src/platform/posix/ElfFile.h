// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace quorvantis {

/// Whether the file is a binary for this machine and as long as its header says. The dynamic loader trusts
/// the header: a truncated library would crash the program.
bool IsWholeElfFile(const std::filesystem::path& file);

}  // namespace quorvantis

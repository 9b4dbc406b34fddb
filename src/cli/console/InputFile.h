// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace quorvantis::cli {

/// Opens a file for reading; anything but a folder may be one. Throws CommandError when it cannot be opened.
std::ifstream OpenInput(const std::filesystem::path& file);

/// The whole content of a file. Throws CommandError.
std::string ReadInput(const std::filesystem::path& file);

/// Throws CommandError if both are the same file: a command must not overwrite what it reads. An empty path
/// is not a file.
void RefuseToOverwrite(const std::filesystem::path& source, const std::filesystem::path& target);

/// Throws CommandError if two of the files that a command writes are the same, existing or not. Empty paths
/// are not files.
void RefuseSameTarget(const std::vector<std::filesystem::path>& targets);

}  // namespace quorvantis::cli

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

/// Throws CommandError when both are the same file: what a command reads it must not overwrite. An empty path
/// is no file.
void RefuseToOverwrite(const std::filesystem::path& source, const std::filesystem::path& target);

/// Throws CommandError when two of the files that a command writes are the same one, there or not. Empty
/// paths are no files.
void RefuseSameTarget(const std::vector<std::filesystem::path>& targets);

}  // namespace quorvantis::cli

// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <fstream>
#include <string>

namespace quorvantis::cli {

/// Opens a file for reading; anything but a folder may be one. Throws CommandError when it cannot be opened.
std::ifstream OpenInput(const std::filesystem::path& file);

/// The whole content of a file. Throws CommandError.
std::string ReadInput(const std::filesystem::path& file);

}  // namespace quorvantis::cli

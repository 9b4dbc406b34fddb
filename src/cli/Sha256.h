// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

namespace quorvantis::cli {

/// The SHA-256 of a regular file's content in lower-case hexadecimal; empty if there is no such file.
std::string Sha256OfFile(const std::filesystem::path& file);

}  // namespace quorvantis::cli

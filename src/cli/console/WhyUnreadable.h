// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

namespace quorvantis::cli {

/// Why a file cannot be read and what to do, for the end of an error line.
std::string WhyUnreadable(const std::filesystem::path& file);

}  // namespace quorvantis::cli

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <filesystem>

namespace quorvantis {

/// A name for what is in a file, made of letters and digits: copies of one attachment under several names
/// have one key, and a changed file has another. Of a large file only the ends, the size and the time are
/// looked at. Empty when the file cannot be read.
QString ContentKey(const std::filesystem::path& file);

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <filesystem>

namespace quorvantis {

/// A name for the content of a file, made of letters and digits: copies of one attachment under several names
/// share a key, and a changed file gets another. For a large file only both ends, the size and the time
/// count. Empty if the file cannot be read.
QString ContentKey(const std::filesystem::path& file);

}  // namespace quorvantis

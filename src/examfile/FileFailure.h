// SPDX-License-Identifier: MIT
// Why a file could not be read or written, in the user's language.
#pragma once

#include "platform/StringTable.h"

#include <filesystem>
#include <string>
#include <system_error>

namespace quorvantis {

/// Why `file` cannot be opened for reading; no error if it can.
std::error_code ReadFailureOf(const std::filesystem::path& file);

/// A sentence. Errors without a text of ours use the system's.
std::u16string FileFailureText(const StringTable& strings, std::error_code failure);

}  // namespace quorvantis

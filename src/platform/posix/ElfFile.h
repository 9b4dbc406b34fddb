// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace quorvantis {

/// Whether the file is a binary of this machine's kind and holds all that its header announces. The dynamic
/// loader takes the header's word for it: a library that was cut would end the program.
bool IsWholeElfFile(const std::filesystem::path& file);

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <system_error>

namespace quorvantis {

/// The folder of the running program.
std::filesystem::path ExecutableFolder();

/// Where the program keeps its settings and work folders: beside itself when that folder can be written
/// (portable use), otherwise in "quorvantis" in the user's folder for program data, which is made.
std::filesystem::path FindApplicationFolder();

/// Whether files can be made in a folder and there is room for them; if not, why.
std::error_code TryWriting(const std::filesystem::path& folder);

}  // namespace quorvantis

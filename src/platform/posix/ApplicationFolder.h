// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <system_error>

namespace quorvantis {

/// The folder of the program file.
std::filesystem::path ExecutableFolder();

/// Where the program keeps its settings and work folders: beside itself when that folder can be written
/// (portable use), otherwise in "quorvantis" in the user's data folder, which is created.
std::filesystem::path FindApplicationFolder();

/// Whether files can be created in a folder and there is room for them; if not, why.
std::error_code TryWriting(const std::filesystem::path& folder);

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace quorvantis {

/// The folder of the running program.
std::filesystem::path ExecutableFolder();

/// Where the program keeps its settings and work folders: beside itself when that folder can be written
/// (portable use), otherwise in "quorvantis" in the user's folder for program data, which is made.
std::filesystem::path FindApplicationFolder();

}  // namespace quorvantis

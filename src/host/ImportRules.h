// SPDX-License-Identifier: MIT
// Finds the file with the import rules.
#pragma once

#include <filesystem>

namespace quorvantis {

/// The "ImportExam.ini" of the application folder, or, if there is none, the one beside the program. Neither
/// may exist.
std::filesystem::path FindImportRules(const std::filesystem::path& applicationFolder);

/// Copies the program's "ImportExam.ini" once into an application folder elsewhere, so that the user can
/// change it. Does nothing if there is no such file or it cannot be copied.
void ProvideImportRules(const std::filesystem::path& programFolder,
                        const std::filesystem::path& applicationFolder);

}  // namespace quorvantis

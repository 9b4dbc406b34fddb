// SPDX-License-Identifier: MIT
// The file with the rules of imports: which one a program uses.
#pragma once

#include <filesystem>

namespace quorvantis {

/// The "ImportExam.ini" of the application folder, or, where that has none, the one beside the program. There
/// may be neither.
std::filesystem::path FindImportRules(const std::filesystem::path& applicationFolder);

/// Gives an application folder that is not the program's own a copy of the "ImportExam.ini" there, once, so
/// that the user can change it. Without either file, or when it cannot be copied, nothing happens.
void ProvideImportRules(const std::filesystem::path& programFolder,
                        const std::filesystem::path& applicationFolder);

}  // namespace quorvantis

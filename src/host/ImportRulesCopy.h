// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace quorvantis {

/// Gives an application folder that is not the program's own a copy of the "ImportExam.ini" there, once, so
/// that the user can change it. Without either file, or when it cannot be copied, nothing happens.
void ProvideImportRules(const std::filesystem::path& programFolder,
                        const std::filesystem::path& applicationFolder);

}  // namespace quorvantis

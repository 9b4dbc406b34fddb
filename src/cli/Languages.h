// SPDX-License-Identifier: MIT
#pragma once

#include "platform/LanguageLibraries.h"

#include <filesystem>
#include <memory>

namespace quorvantis::cli {

/// The language library of that identifier among those of an application folder (empty: a private one, which
/// has none of its own) and of the program. Throws CommandError when there is none.
std::unique_ptr<LanguageLibrary> LoadLanguage(const std::filesystem::path& applicationFolder, int languageId);

}  // namespace quorvantis::cli

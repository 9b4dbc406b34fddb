// SPDX-License-Identifier: MIT
#pragma once

#include "platform/LanguageLibraries.h"
#include "shell/language/LanguageList.h"

#include <filesystem>
#include <memory>

namespace quorvantis::cli {

/// The language libraries of an application folder (empty: a private one, which has none of its own), or else
/// of the program. Throws CommandError when there are none.
LanguageList FindLanguages(const std::filesystem::path& applicationFolder);

/// The one with that identifier among FindLanguages. Throws CommandError when there is none.
std::unique_ptr<LanguageLibrary> LoadLanguage(const std::filesystem::path& applicationFolder, int languageId);

}  // namespace quorvantis::cli

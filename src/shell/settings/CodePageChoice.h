// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

namespace quorvantis {

/// Language identifiers, as reported by language libraries.
constexpr int kEnglish = 0x0409;

/// The name of the code page that 8-bit exam files are in, for iconv: the key "CodePage" of section "private"
/// in "system.ini" (a Windows number or a name), otherwise the usual one of the language in use.
std::string ChooseCodePage(const std::filesystem::path& applicationFolder, int languageId);

}  // namespace quorvantis

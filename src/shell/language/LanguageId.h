// SPDX-License-Identifier: MIT
// Identifiers of languages, as Windows numbers them: the low 10 bits are the language, the rest its variant.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quorvantis {

/// Reads an identifier as people write it: "1033" or "0x409". Nothing when it is not one of 16 bits.
std::optional<int> ParseLanguageId(std::string_view text);

/// "0x0409".
std::string FormatLanguageId(int languageId);

/// Whether the language is written from right to left, and windows are to be mirrored.
bool IsRightToLeft(int languageId);

}  // namespace quorvantis

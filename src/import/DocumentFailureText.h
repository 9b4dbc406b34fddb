// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StringTable.h"
#include "platform/WordDocuments.h"

#include <filesystem>
#include <string_view>

namespace quorvantis {

/// One line for the user: which document could not be read and why, or that there is no word processor for
/// it.
std::u16string DocumentFailureText(WordResult result, const std::filesystem::path& document,
                                   const StringTable& strings);

/// Why `count` pictures could not be read: a part of a sentence.
std::u16string PictureFailureText(WordResult result, std::u16string_view count, const StringTable& strings);

}  // namespace quorvantis

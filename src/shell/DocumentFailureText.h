// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StringTable.h"
#include "platform/WordReader.h"

#include <filesystem>

namespace quorvantis {

/// One line for the user: which document could not be read and why, or that there is no word processor for
/// it.
std::u16string DocumentFailureText(WordResult result, const std::filesystem::path& document,
                                   const StringTable& strings);

/// Why pictures could not be read: a part of a sentence.
std::u16string PictureFailureText(WordResult result, const StringTable& strings);

}  // namespace quorvantis

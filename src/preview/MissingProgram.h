// SPDX-License-Identifier: MIT
#pragma once

#include "platform/convert/ConverterPrograms.h"

#include <QString>

#include <filesystem>

namespace quorvantis {

/// The program that must be installed for this file to appear, as users know it; empty if nothing is missing.
/// Flash needs a player rather than a converter.
QString MissingProgram(const std::filesystem::path& file, const ConverterPrograms& programs,
                       bool hasFlashPlayer);

}  // namespace quorvantis

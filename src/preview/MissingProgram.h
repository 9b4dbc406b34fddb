// SPDX-License-Identifier: MIT
#pragma once

#include "platform/convert/ConverterPrograms.h"

#include <QString>

#include <filesystem>

namespace quorvantis {

/// The name of what would have to be installed for this file to appear, for the reader; empty when nothing is
/// missing. Flash has a player of its own beside the converting programs.
QString MissingProgram(const std::filesystem::path& file, const ConverterPrograms& programs,
                       bool hasFlashPlayer);

}  // namespace quorvantis

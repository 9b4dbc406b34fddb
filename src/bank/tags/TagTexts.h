// SPDX-License-Identifier: MIT
#pragma once

#include "bank/tags/TagFile.h"

#include <filesystem>
#include <string>

namespace quorvantis {

class StringTable;

/// What is wrong with the file of tags, for the user; empty if nothing is.
std::u16string TagProblemText(const TagResult& result, const std::filesystem::path& file,
                              const StringTable& strings);

}  // namespace quorvantis

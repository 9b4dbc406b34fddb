// SPDX-License-Identifier: MIT
#pragma once

#include "learn/rules/RepositoryText.h"
#include "platform/StringTable.h"

#include <string>

namespace quorvantis {

/// Why a repository was not added, in one line for the user; empty if it was.
std::u16string RefusalText(const AddedRepository& added, const Repository& repository,
                           const StringTable& strings);

}  // namespace quorvantis

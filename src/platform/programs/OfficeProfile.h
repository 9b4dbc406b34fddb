// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace quorvantis {

/// Makes a LibreOffice profile in `folder` under which a document can neither run macros nor fetch anything:
/// linked pictures would otherwise be loaded from servers and from the user's own files while it is
/// converted.
void WriteOfficeProfile(const std::filesystem::path& folder);

}  // namespace quorvantis

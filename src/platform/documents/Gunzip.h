// SPDX-License-Identifier: MIT
#pragma once

#include "platform/documents/ZipPackage.h"

#include <cstddef>
#include <string>

namespace quorvantis {

/// Unpacks bytes packed with gzip, as drawings (".emz", ".wmz") in packages are; at most `limit` bytes.
/// Returns other bytes unchanged.
PackagePart Gunzip(PackagePart part, std::size_t limit);

}  // namespace quorvantis

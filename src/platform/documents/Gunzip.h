// SPDX-License-Identifier: MIT
#pragma once

#include "platform/documents/ZipPackage.h"

#include <cstddef>
#include <string>

namespace quorvantis {

/// The content of bytes that were packed with gzip, as drawings (".emz", ".wmz") in packages are; at most
/// `limit` bytes. Other bytes are given back as they are.
PackagePart Gunzip(PackagePart part, std::size_t limit);

}  // namespace quorvantis

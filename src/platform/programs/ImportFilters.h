// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// The LibreOffice import filters to try, in this order, for a document with the lower-case `extension` that
/// begins with `head` (8 bytes suffice). None for content that is not such a document: without a filter,
/// LibreOffice would take any bytes for text and show pages of rubbish.
std::vector<std::string> ImportFiltersOf(std::string_view extension, std::string_view head);

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "render/ComposedPages.h"

#include <string>
#include <string_view>

namespace quorvantis {

/// `page` as the browser gets it: each text by which it names a file of `pages` becomes the address of that
/// file. Pages contain names unescaped: a quote would end the attribute, and "#", "?" and "%" have meanings
/// of their own in an address. Players in the strings of a script, where quotes and backslashes are escaped,
/// are treated alike. After each source the page scripts find what only the exam knows, in the attributes
/// "data-name" and "data-muted".
std::u16string EscapeSources(std::u16string_view page, const ComposedPages& pages);

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "render/ComposedPages.h"

#include <string>
#include <string_view>

namespace quorvantis {

/// `page` as the browser gets it: each text by which it names a file of `pages` becomes the address of that
/// file. In a page the name stands plainly, whatever is in it: a quote would end the attribute there, and
/// "#",
/// "?" and "%" have meanings of their own in an address. Players within the strings of a script, where quotes
/// and backslashes are escaped, count too. Behind each source the page scripts find what only the exam knows,
/// in the attributes "data-name" and "data-muted".
std::u16string EscapeSources(std::u16string_view page, const ComposedPages& pages);

}  // namespace quorvantis

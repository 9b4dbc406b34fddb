// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace quorvantis {

/// Whether a text in Markdown has marks of it: emphasis, code, links, lists, headings or quotations.
bool HasMarkdownMarks(std::u16string_view text);

}  // namespace quorvantis

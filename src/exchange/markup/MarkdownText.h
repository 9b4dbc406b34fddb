// SPDX-License-Identifier: MIT
// Texts in Markdown. What stands within a line becomes HTML: emphasis, code, links and pictures. Lists,
// headings and the like stay as they are written, so that nothing changes that is not certain.
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

/// As HTML; every line end is a line break. HTML in the text stays.
std::u16string MarkdownToHtml(std::u16string_view text);

/// Whether a line is part of something that stays as it is written.
bool HasMarkdownBlocks(std::u16string_view text);

}  // namespace quorvantis

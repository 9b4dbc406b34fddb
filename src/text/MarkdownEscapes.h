// SPDX-License-Identifier: MIT
// Characters that mean something in Markdown, protected by backslashes.
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

/// A text that Markdown shows as it is. Blanks, three underscores or more, stay as they are within a line:
/// they are read in mails, too.
std::u16string ProtectMarkdown(std::u16string_view text);

/// The text that was protected.
std::u16string UnprotectMarkdown(std::u16string_view text);

}  // namespace quorvantis

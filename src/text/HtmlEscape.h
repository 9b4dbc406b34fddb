// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

/// `text` as text of a page or as the value of an attribute, in HTML and XML: `&`, `<`, `>` and double quotes
/// are escaped, so no markup is left in it.
std::u16string EscapeHtml(std::u16string_view text);

}  // namespace quorvantis

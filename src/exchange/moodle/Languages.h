// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quorvantis {

/// A text that is there in several languages, of which a page would show one, with all of them side by side:
/// "Hello / Hallo" for spans of the class "multilang" or for "{mlang en}Hello{mlang}{mlang de}Hallo{mlang}".
/// Nothing for any other text.
std::optional<std::u16string> LanguagesSideBySide(std::u16string_view html);

}  // namespace quorvantis

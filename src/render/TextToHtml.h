// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

/// The text with "<br>" at the end of each line. Nothing is escaped: authors put markup into their questions.
/// The first CR or LF of a line end goes together with exactly one more character, whatever that is, on
/// purpose: lines separated by a lone LF lose their first character in every page of every version, and pages
/// are compared.
std::u16string TextToHtml(std::u16string_view text);

}  // namespace quorvantis

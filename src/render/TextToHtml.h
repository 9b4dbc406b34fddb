// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

/// The text with "<br>" at the end of each line. Nothing is escaped: authors use markup in their questions.
/// Deliberate: the first CR or LF of a line end takes exactly one more character with it, whatever that is.
/// Lines separated by a lone LF lose their first character on every page of every version, and pages are
/// compared.
std::u16string TextToHtml(std::u16string_view text);

}  // namespace quorvantis

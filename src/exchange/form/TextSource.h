// SPDX-License-Identifier: MIT
// What the readers of text files share.
#pragma once

#include "exchange/form/Format.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// The text of a file, its lines ended by LF. Nothing if it is too large, which is told.
std::optional<std::u16string> ReadSourceText(const ExchangeSource& source, ReadingTools& tools);

/// The beginning of a file as text, its lines ended by LF.
std::u16string HeadText(const ExchangeSource& source);

/// Without blanks and line ends at both ends.
std::u16string_view Trimmed(std::u16string_view text);

/// Cuts the line at the front of `text` off, with its LF, and returns it without.
std::u16string_view TakeLine(std::u16string_view& text);

std::vector<std::u16string_view> LinesOf(std::u16string_view text);

}  // namespace quorvantis

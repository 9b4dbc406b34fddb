// SPDX-License-Identifier: MIT
// Lines that come along when a test is copied from a web page: "Flag question", "Mark 1.00 out of 1.00",
// "Select one:", "Submit".
#pragma once

#include <string_view>

namespace quorvantis {

/// Whether a line is one of these and nothing else. A paper that somebody has typed may have one by chance,
/// but hardly two.
bool IsPlatformLine(std::u16string_view line);

/// "Correct", "Not answered": such a line only where a platform line follows, for it may be an option.
bool IsStateLine(std::u16string_view line);

}  // namespace quorvantis

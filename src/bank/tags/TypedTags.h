// SPDX-License-Identifier: MIT
// Tags as they are typed on a line, with commas or semicolons of any script between them. A tag that has such
// a sign itself stands in quotation marks: "Smith, J.".
#pragma once

#include "text/TextSpan.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// What is typed between the signs, with its blanks and quotation marks: at least one place, in UTF-16 units.
/// A quotation mark that nothing closes reaches to the end of the line.
std::vector<TextSpan> TypedTagsIn(std::u16string_view line);

/// The tag that is typed in such a place, without the quotation marks around it; it may be blank or too long
/// (CleanTag).
std::u16string_view TypedTag(std::u16string_view typed);

/// What to type for a tag.
std::u16string TypedFormOf(std::u16string_view tag);

}  // namespace quorvantis

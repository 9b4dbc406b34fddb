// SPDX-License-Identifier: MIT
#pragma once

#include "examfile/ExamFileLayout.h"
#include "platform/CodePage.h"

#include <string_view>

namespace quorvantis {

/// How many bytes from the start of an untagged file UntaggedEncoding needs: the header and nine questions.
/// With more questions the header contains a number of two digits, which decides by itself.
inline constexpr std::size_t kUntaggedStart = std::size_t{96} * 1024;

/// Untagged files were written in UTF-16 and in 8-bit text, and nothing in them says which. If the number
/// fields of the header are numbers in only one of the two, that one is used. Otherwise the texts are read
/// both ways and the more plausible reading is taken; UTF-16 unless 8-bit text is clearly more plausible.
/// `start` is the beginning of the file, `codePage` the code page of 8-bit text.
FieldEncoding UntaggedEncoding(std::string_view start, const CodePage& codePage);

}  // namespace quorvantis

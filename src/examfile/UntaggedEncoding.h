// SPDX-License-Identifier: MIT
#pragma once

#include "examfile/ExamFileLayout.h"
#include "platform/CodePage.h"

#include <string_view>

namespace quorvantis {

/// So many bytes from the start of an untagged file are enough for UntaggedEncoding: the header and nine
/// questions. With more questions the header has a number of two digits, and tells by itself.
inline constexpr std::size_t kUntaggedStart = std::size_t{96} * 1024;

/// Untagged files were written with UTF-16 and with 8-bit text, and nothing in them says which. Where only
/// one of the two makes numbers of the header's number fields, it is that one. Otherwise both ways of reading
/// the texts are compared, and the less far-fetched one is taken; UTF-16 unless 8-bit text is clearly less
/// so. `start` is the beginning of the file, `codePage` that of its 8-bit text.
FieldEncoding UntaggedEncoding(std::string_view start, const CodePage& codePage);

}  // namespace quorvantis

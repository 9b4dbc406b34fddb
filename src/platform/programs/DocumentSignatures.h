// SPDX-License-Identifier: MIT
// What the files of word processors and their like begin with.
#pragma once

#include <string_view>

namespace quorvantis {

inline constexpr std::string_view kCompoundFileSignature = "\xD0\xCF\x11\xE0";  ///< older documents
inline constexpr std::string_view kPackageSignature = "PK\x03\x04";             ///< newer documents
inline constexpr std::string_view kRichTextSignature = "{\\rtf";

}  // namespace quorvantis

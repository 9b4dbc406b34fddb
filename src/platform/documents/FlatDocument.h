// SPDX-License-Identifier: MIT
// Text documents in a single XML file, from which LibreOffice makes documents of other formats.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// LibreOffice's name for such files, whose extension is ".fodt".
constexpr const char* kFlatDocumentFilter = "OpenDocument Text Flat XML";

/// The file. `styles` are the elements before the body, `body` those of the text.
std::string FlatDocument(std::string_view styles, std::string_view body);

/// A document of plain paragraphs in fonts for every script; see `WordWriteJob` about their characters.
std::string FlatDocumentOf(const std::vector<std::u16string>& paragraphs);

}  // namespace quorvantis

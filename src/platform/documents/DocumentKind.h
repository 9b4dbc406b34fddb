// SPDX-License-Identifier: MIT
#pragma once

#include "platform/WordDocuments.h"

#include <filesystem>
#include <string_view>

namespace quorvantis {

/// With which every rich text begins.
inline constexpr std::string_view kRichTextBeginning = "{\\rtf";

/// WordXml is the XML of Word 2003, which mostly bears a name in ".doc" or ".xml".
enum class DocumentKind { Docx, Doc, OpenDocument, RichText, WordXml };

/// What a file is. `result` is `Done` when it can be tried to read it; the reason otherwise.
struct DocumentKindOutcome {
  WordResult result = WordResult::Done;
  DocumentKind kind = DocumentKind::Docx;
};

/// Tells it by the content alone: many a file has a name that promises something else.
DocumentKindOutcome KindOfDocument(const std::filesystem::path& file);

}  // namespace quorvantis

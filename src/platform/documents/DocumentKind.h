// SPDX-License-Identifier: MIT
#pragma once

#include "platform/WordDocuments.h"

#include <filesystem>

namespace quorvantis {

/// WordXml is the XML of Word 2003, usually named ".doc" or ".xml".
enum class DocumentKind { Docx, Doc, OpenDocument, RichText, WordXml };

/// The type of a file. `result` is `Done` if reading can be tried, otherwise the reason.
struct DocumentKindOutcome {
  WordResult result = WordResult::Done;
  DocumentKind kind = DocumentKind::Docx;
};

/// A file's content decides its type; many have the wrong extension.
DocumentKindOutcome KindOfDocument(const std::filesystem::path& file);

}  // namespace quorvantis

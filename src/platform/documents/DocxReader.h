// SPDX-License-Identifier: MIT
#pragma once

#include "platform/WordDocuments.h"
#include "platform/documents/PicturePlace.h"
#include "platform/documents/ZipPackage.h"

#include <vector>

namespace quorvantis {

/// What a package says, and where its pictures lie.
struct DocxContent {
  WordResult result = WordResult::Done;
  WordDocument document;
  std::vector<PicturePlace> pictures;  ///< their sources are names of parts
};

/// Reads the main text of a word processor's package (".docx"). It takes no more memory and time than a large
/// real document does, whatever the package claims.
DocxContent ReadDocx(const ZipPackage& package, bool listLabels);

}  // namespace quorvantis

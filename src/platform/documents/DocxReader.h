// SPDX-License-Identifier: MIT
#pragma once

#include "platform/WordDocuments.h"
#include "platform/documents/PicturePlace.h"
#include "platform/documents/ZipPackage.h"

#include <vector>

namespace quorvantis {

/// The content of a package, and where its pictures are.
struct DocxContent {
  WordResult result = WordResult::Done;
  WordContent document;
  std::vector<PicturePlace> pictures;  ///< their sources are names of parts
};

/// Reads the main text of a word-processor package (".docx"). Takes no more memory and time than a large real
/// document would, whatever the package claims.
DocxContent ReadDocx(const ZipPackage& package, bool listLabels);

}  // namespace quorvantis

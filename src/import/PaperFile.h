// SPDX-License-Identifier: MIT
#pragma once

#include "import/marking/RuleSearch.h"
#include "import/paper/Paper.h"
#include "platform/WordDocuments.h"

#include <filesystem>

namespace quorvantis {

/// A paper as it was read from a file, to be studied. Nothing is written.
struct PaperFile {
  WordResult result = WordResult::Done;  ///< unless Done, the paper is empty
  Paper paper{};  ///< with automatic numbers if asked for; pictures have the names of an import's first
  bool hasAutomaticNumbers = false;
  std::size_t formulas = 0;
  std::size_t pictures = 0;
};

/// Reads a paper as an import with `ListLabels=1` would, or, without `listLabels`, as one without.
PaperFile OpenPaper(WordDocuments& documents, const std::filesystem::path& file,
                    const CancelHook& isCancelled, bool listLabels = true);

}  // namespace quorvantis

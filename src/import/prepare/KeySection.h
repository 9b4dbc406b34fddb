// SPDX-License-Identifier: MIT
// The answers at the end of a paper, and the questions that they belong to.
#pragma once

#include "import/prepare/KeyTokens.h"
#include "import/prepare/PaperOutline.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace quorvantis {

/// An answer at the end and its question.
struct MatchedEntry {
  KeyEntry entry;
  std::size_t question = 0;  ///< index in KeySection::questions
};

/// A key at the end whose answers belong to questions without doubt.
struct KeySection {
  std::size_t begin = 0;                      ///< of its heading, or of its first line; it reaches to the end
  std::vector<OutlinedQuestion> questions{};  ///< those before it
  std::vector<MatchedEntry> entries{};
};

/// What was found of answers at the end.
struct KeySearchResult {
  std::optional<KeySection> section{};
  bool isUnmatched = false;  ///< there is a key, but it does not say for which questions
};

KeySearchResult FindKeySection(std::u16string_view text, const PaperOutline& outline);

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
// The answers at the end of a paper, and the questions that they belong to.
#pragma once

#include "import/keys/KeyTokens.h"
#include "import/paper/PaperOutline.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace quorvantis {

/// An answer at the end and its question.
struct MatchedEntry {
  KeyEntry entry;
  std::size_t question = 0;  ///< index in KeySection::questions
};

/// What a key says that comes to no question. It must be told, for it leaves the paper with the key.
struct KeyLeftover {
  enum class Kind {
    NotPlaced,    ///< an answer whose number no question has, or that is not clear, or other lines
    Explanation,  ///< lines behind answers in letters
    Miscounted,   ///< `letters` letters for `questions` questions
    Unmatched,    ///< the whole key: its numbers occur twice or fit no questions
    Versions,     ///< the whole key: it is for several versions of the paper
  };
  Kind kind = Kind::NotPlaced;
  TextSpan span;
  std::size_t letters = 0;
  std::size_t questions = 0;
};

/// A key at the end. The answers that it gives to questions are theirs without doubt; there may be none.
struct KeySection {
  std::size_t begin = 0;                      ///< of its heading, or of its first line; it reaches to the end
  std::vector<OutlinedQuestion> questions{};  ///< those before it
  std::vector<MatchedEntry> entries{};
  std::vector<KeyLeftover> leftovers{};  ///< in the order of the text
};

/// What was found of answers at the end.
struct KeySearchResult {
  std::optional<KeySection> section{};
  bool isUnmatched = false;  ///< there is a key, but it does not say for which questions; it stays
};

/// The questions that begin before a place, as if the text ended there.
std::vector<OutlinedQuestion> QuestionsBefore(std::u16string_view text, const PaperOutline& outline,
                                              std::size_t end);

KeySearchResult FindKeySection(std::u16string_view text, const PaperOutline& outline);

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
// Which answers of a key belong to which questions, by their numbers.
#pragma once

#include "import/keys/KeyReader.h"
#include "import/keys/KeySection.h"

#include <optional>
#include <string_view>
#include <vector>

namespace quorvantis {

/// Whether an answer is one that the question can have: for a choice question, one or more of its options.
bool FitsQuestion(std::u16string_view text, const KeyEntry& entry, const OutlinedQuestion& question);

/// The questions of the entries. Where numbers start again, parts of the key belong to parts of the paper by
/// their titles, and without titles in their order. Nothing if there is no way, or more than one. Entries
/// whose number no question has are left out, if they are few. Entries without numbers go by order, if there
/// are as many as choice questions.
std::optional<std::vector<MatchedEntry>> MatchEntries(std::u16string_view text, const KeyList& key,
                                                      const std::vector<OutlinedQuestion>& questions);

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "bank/search/BankSearch.h"
#include "bank/search/FolderTags.h"
#include "bank/tags/TagStep.h"

#include <functional>
#include <string>
#include <vector>

namespace quorvantis {

/// Gives tags to questions of the bank, and takes others from them. Questions without content are passed
/// over: tags belong to a content.
TagStep StepFor(const std::vector<BankQuestion>& questions, const std::vector<std::u16string>& add,
                const std::vector<std::u16string>& remove);

/// Whether a question has content, so that it can have tags.
bool CanHaveTags(const BankQuestion& question);

/// The tags of the most similar question of the folder, for one that has none itself but was made from that
/// one; empty if there is none. A guess (FindTags).
std::vector<std::u16string> EarlierTags(const BankQuestion& question, const TagsOfFolder& tags);

/// All tags in the folders of the exams of the bank, each once, sorted. Empty if the index cannot be read.
/// `isCancelled`, which may be empty, is polled between folders.
std::vector<std::u16string> KnownTags(const BankIndex& index, FolderTags& tags,
                                      const std::function<bool()>& isCancelled = {});

}  // namespace quorvantis

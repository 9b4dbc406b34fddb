// SPDX-License-Identifier: MIT
#pragma once

#include "bank/index/BankIndex.h"
#include "bank/search/BankQuery.h"
#include "bank/search/FolderTags.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace quorvantis {

/// The questions that the tags of a query leave. Tags are kept beside the exams and not in the index, so they
/// are looked up there by the content of the questions.
struct TaggedQuestions {
  std::optional<std::vector<std::int64_t>> wanted;  ///< no others, if there is a list
  std::vector<std::int64_t> unwanted;               ///< not these
  std::vector<UnreadTags> unread;
};

/// `exams` are those in which questions may be. Throws DatabaseError.
TaggedQuestions FindTagged(const BankIndex& index, const BankQuery& query, const std::vector<BankExam>& exams,
                           FolderTags& tags);

}  // namespace quorvantis

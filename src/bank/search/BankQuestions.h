// SPDX-License-Identifier: MIT
#pragma once

#include "bank/index/BankIndex.h"
#include "bank/search/BankSearch.h"

#include <cstdint>
#include <optional>

namespace quorvantis {

/// Reads questions of the index with all that belongs to them. Throws DatabaseError.
class BankQuestions {
 public:
  explicit BankQuestions(const BankIndex& index);

  /// Nothing if the question is no longer there.
  std::optional<BankQuestion> Read(std::int64_t id);

 private:
  Statement question_;
  Statement files_;
};

}  // namespace quorvantis

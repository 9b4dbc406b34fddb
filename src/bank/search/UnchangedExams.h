// SPDX-License-Identifier: MIT
#pragma once

#include "bank/index/BankIndex.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <vector>

namespace quorvantis {

class FileDigest;

/// Tells which exam files are in the folders of the bank and as the index has them, so that what it knows of
/// them may be shown. Looks at each exam once. Throws DatabaseError.
class UnchangedExams {
 public:
  /// Both must outlive this.
  UnchangedExams(const BankIndex& index, const FileDigest& digest);

  bool Has(const BankExam& exam);

 private:
  bool Look(const BankExam& exam);

  std::vector<std::filesystem::path> folders_;
  const FileDigest& digest_;
  Statement hash_;
  std::map<std::int64_t, bool> known_;  ///< by the identifier of the exam
};

}  // namespace quorvantis

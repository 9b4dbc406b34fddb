// SPDX-License-Identifier: MIT
#include "bank/search/UnchangedExams.h"

#include "bank/index/BankFolders.h"
#include "bank/index/FileStamp.h"
#include "platform/FileDigest.h"

#include <algorithm>

namespace quorvantis {

UnchangedExams::UnchangedExams(const BankIndex& index, const FileDigest& digest)
    : folders_(index.Folders()),
      digest_(digest),
      hash_(index.Data().Prepare("SELECT hash FROM exam WHERE id = ?")) {}

bool UnchangedExams::Has(const BankExam& exam) {
  const auto [known, isNew] = known_.try_emplace(exam.id, false);
  if (isNew) known->second = Look(exam);
  return known->second;
}

/// A file that may have changed without a new time is read.
bool UnchangedExams::Look(const BankExam& exam) {
  const bool isInBank =
      std::any_of(folders_.begin(), folders_.end(),
                  [&](const std::filesystem::path& folder) { return LiesIn(exam.path, folder); });
  if (!isInBank || FileStamp::Of(exam.path) != FileStamp{exam.size, exam.written}) return false;
  if (exam.isSettled) return true;
  hash_.Bind(1, exam.id);
  const bool isSame = hash_.Step() && digest_.OfFile(exam.path) == hash_.Bytes(0);
  hash_.Reset();
  return isSame;
}

}  // namespace quorvantis

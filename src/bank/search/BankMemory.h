// SPDX-License-Identifier: MIT
#pragma once

#include "bank/index/BankIndex.h"
#include "bank/reuse/SharedWithOlder.h"
#include "bank/search/BankSearch.h"
#include "likeness/QuestionContent.h"
#include "likeness/QuestionRelation.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <vector>

namespace quorvantis {

/// A question of the bank that is the same as another one, or a variant of it.
struct BankUse {
  BankExam exam;
  int number = 0;             ///< 1 to 500
  std::int64_t question = 0;  ///< its identifier in the index
  QuestionRelation relation = QuestionRelation::Equal;
};

/// What an exam of the bank has in common with the one that was asked about.
struct BankShare {
  BankExam exam;
  std::size_t same = 0;      ///< questions
  std::size_t variants = 0;  ///< further ones, with other numbers, files or options
  double share = 0;          ///< of the questions asked about that are the same, 0 to 1
};

/// What was asked before.
struct BankLikeness {
  std::vector<std::vector<BankUse>>
      uses;                      ///< of each question that was asked about, the same before variants
  std::vector<BankShare> exams;  ///< the most in common first
  BankProblem problem;
  bool isCancelled = false;  ///< then the rest is incomplete
};

/// Remembers the questions of the bank by their sketches, as they were when it was made: about 15 MB for
/// 50,000. It never changes, so several threads may use one, each with an index of its own. What it tells is
/// read in the index and compared exactly, and only of exams whose files are there and as the index has them.
class BankMemory {
 public:
  /// Reads the index; leaves the rest out when `isCancelled`, which may be empty, says so.
  explicit BankMemory(BankIndex& index, const std::function<bool()>& isCancelled = {});

  /// Whether the index still has the questions that are remembered.
  bool IsUpToDate(BankIndex& index) const;

  /// Where questions stand in the bank. `self`, which may be empty, is their own exam and is left out. Tells
  /// the progress in questions.
  BankLikeness Like(BankIndex& index, const FileDigest& digest, const std::vector<QuestionContent>& questions,
                    const std::filesystem::path& self, Progress& progress) const;

  /// Where else a question of the bank stands.
  BankLikeness Elsewhere(BankIndex& index, const FileDigest& digest, const BankQuestion& question,
                         Progress& progress) const;

 private:
  /// Whether an older question does not count.
  using IsLeftOut = std::function<bool(const BankQuestion&)>;

  BankLikeness Compare(BankIndex& index, const FileDigest& digest,
                       const std::vector<QuestionContent>& questions, const IsLeftOut& isLeftOut,
                       Progress& progress) const;

  std::vector<OlderQuestion> older_;
  std::vector<std::int64_t> identifiers_;  ///< of each of older_
  std::uint64_t state_ = 0;                ///< of the index
  BankProblem problem_;
};

/// The content of a question of the bank.
QuestionContent ContentOfHit(const BankQuestion& question);

}  // namespace quorvantis

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
#include <span>
#include <vector>

namespace quorvantis {

/// A question of the bank that is the same as another one, or a variant of it.
struct BankUse {
  BankExam exam;
  int number = 0;  ///< 1 to 500
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

/// Remembers the questions of the bank by their sketches, as they were when it was made.
class BankMemory {
 public:
  /// `index` must outlive this. About 15 MB for 50,000 questions.
  explicit BankMemory(BankIndex& index);

  /// Where questions stand in the bank. `self`, which may be empty, is their own exam and is left out.
  BankLikeness Like(const std::vector<QuestionContent>& questions, const std::filesystem::path& self,
                    const std::function<bool()>& isCancelled = {}) const;

  /// Where else a question of the bank stands.
  BankLikeness Elsewhere(const BankQuestion& question) const;

 private:
  struct Place {
    std::int64_t question = 0;
    std::int64_t exam = 0;
  };

  BankLikeness Compare(const std::vector<QuestionContent>& questions,
                       const std::function<bool(const Place&)>& isLeftOut,
                       const std::function<bool()>& isCancelled) const;

  void Fill(const ReuseReport& report, const std::vector<OlderQuestion>& older, BankLikeness& likeness) const;

  BankIndex& index_;
  std::vector<OlderQuestion> older_;
  std::vector<Place> places_;  ///< of each of older_
  BankProblem problem_;
};

/// The content of a question of the bank.
QuestionContent ContentOfHit(const BankQuestion& question);

}  // namespace quorvantis

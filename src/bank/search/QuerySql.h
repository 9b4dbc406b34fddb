// SPDX-License-Identifier: MIT
#pragma once

#include "bank/index/Database.h"
#include "bank/search/BankQuery.h"
#include "bank/search/TagFilter.h"

#include <cstdint>
#include <string>
#include <vector>

namespace quorvantis {

/// A query as statements: everything of the user's is a bound value, never a part of a statement. Their rows
/// are the identifier of a question and a number by which the best come first.
class QuerySql {
 public:
  /// `exams`, if not null, are those in which questions may be; `tagged` are the questions that their tags
  /// leave.
  QuerySql(const BankQuery& query, const std::vector<std::int64_t>* exams,
           const TaggedQuestions& tagged = {});

  /// All questions, with a number for the order only where that costs nothing: 0 for a query with words.
  std::string Unranked() const;
  /// With that number. It takes microseconds for each question, so that of a query with words only the
  /// questions read last into the index get it, `most` of them, and no others are found.
  std::string Ranked(std::size_t most) const;
  /// How many there are.
  std::string Count() const;

  void Bind(Statement& statement) const;

  /// Whether there are words, whose hits have a rank.
  bool HasWords() const { return identifier_ != "question.id"; }

 private:
  void AddTerms(const BankQuery& query);
  void AddQuestionFilters(const BankQuery& query, const std::vector<std::int64_t>* exams);
  void AddMatch(const std::string& table, const std::string& match, bool isExcluded);
  void AddTagged(const TaggedQuestions& tagged);
  void AddCondition(const std::string& condition);

  std::string source_;
  std::string identifier_;
  std::string rank_;
  std::string conditions_;
  std::vector<std::string> texts_;  ///< to bind, in the order of the statement
  std::vector<double> numbers_;     ///< likewise, after the texts
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "bank/index/Database.h"
#include "bank/search/BankQuery.h"

#include <cstdint>
#include <string>
#include <vector>

namespace quorvantis {

/// A query as a statement: everything of the user's is a bound value, never a part of the statement. Its rows
/// are the identifier of a question and a number by which the best come first.
class QuerySql {
 public:
  /// `exams`, if not null, are those in which questions may be.
  QuerySql(const BankQuery& query, const std::vector<std::int64_t>* exams);

  const std::string& Text() const { return text_; }
  void Bind(Statement& statement) const;

 private:
  void AddTerms(const BankQuery& query);
  void AddQuestionFilters(const BankQuery& query, const std::vector<std::int64_t>* exams);
  void AddMatch(const std::string& table, const std::string& match, bool isExcluded);
  void AddCondition(const std::string& condition);

  std::string source_;
  std::string identifier_;
  std::string rank_;
  std::string conditions_;
  std::string text_;
  std::vector<std::string> texts_;  ///< to bind, in the order of the statement
  std::vector<double> numbers_;     ///< likewise, after the texts
};

}  // namespace quorvantis

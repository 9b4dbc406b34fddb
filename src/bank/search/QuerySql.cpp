// SPDX-License-Identifier: MIT
#include "bank/search/QuerySql.h"

#include "bank/index/ShortWords.h"
#include "text/Utf.h"

#include <cmath>

namespace quorvantis {
namespace {

/// A phrase of the full-text language: within quotation marks nothing has a meaning but these.
std::string AsPhrase(const std::string& text) {
  std::string phrase = "\"";
  for (const char c : text) phrase.append(c == '"' ? 2 : 1, c);
  return phrase + "\"";
}

/// What a full-text table is asked for.
class Matches {
 public:
  void Add(const std::string& token, const char* joint) {
    if (!text_.empty()) text_ += joint;
    text_ += AsPhrase(token);
  }
  const std::string& Text() const { return text_; }

 private:
  std::string text_;
};

bool IsShort(const BankTerm& term) {
  return CharactersOf(term.folded) < kTrigram;
}

std::string JsonListOf(const std::vector<std::int64_t>& numbers) {
  std::string list = "[";
  for (const std::int64_t number : numbers)
    list.append(list.size() > 1 ? "," : "").append(std::to_string(number));
  return list + "]";
}

}  // namespace

QuerySql::QuerySql(const BankQuery& query, const std::vector<std::int64_t>* exams,
                   const TaggedQuestions& tagged) {
  AddTerms(query);
  AddTagged(tagged);
  AddQuestionFilters(query, exams);
}

std::string QuerySql::Unranked() const {
  return "SELECT " + identifier_ + ", " + (HasWords() ? "0" : rank_) + " FROM " + source_ + conditions_;
}

std::string QuerySql::Ranked(std::size_t most) const {
  if (!HasWords()) return Unranked();
  return "SELECT " + identifier_ + ", " + rank_ + " FROM " + source_ + conditions_ + " ORDER BY " +
         identifier_ + " DESC LIMIT " + std::to_string(most);
}

std::string QuerySql::Count() const {
  return "SELECT count(*) FROM " + source_ + conditions_;
}

void QuerySql::AddTerms(const BankQuery& query) {
  Matches grams;
  Matches shorts;
  Matches noGrams;
  Matches noShorts;
  for (const BankTerm& term : query.terms) {
    if (IsShort(term)) {
      (term.isExcluded ? noShorts : shorts)
          .Add(ShortToken(term.folded, term.isBegun), term.isExcluded ? " OR " : " AND ");
    } else {
      (term.isExcluded ? noGrams : grams).Add(Utf16ToUtf8(term.folded), term.isExcluded ? " OR " : " AND ");
    }
  }
  if (!grams.Text().empty()) {
    source_ = "gram";
    rank_ = "bm25(gram, 4.0, 1.5, 1.5, 1.0)";
  } else if (!shorts.Text().empty()) {
    source_ = "short";
    rank_ = "bm25(short)";
  } else {  // the newest first
    source_ = "question JOIN exam ON exam.id = question.exam";
    rank_ = "-exam.written";
  }
  identifier_ = source_ == "gram" || source_ == "short" ? source_ + ".rowid" : "question.id";
  AddMatch("gram", grams.Text(), false);
  AddMatch("short", shorts.Text(), false);
  AddMatch("gram", noGrams.Text(), true);
  AddMatch("short", noShorts.Text(), true);
}

void QuerySql::AddMatch(const std::string& table, const std::string& match, bool isExcluded) {
  if (match.empty()) return;
  texts_.push_back(match);
  if (table == source_ && !isExcluded) return AddCondition(table + " MATCH ?");
  AddCondition(identifier_ + (isExcluded ? " NOT IN" : " IN") + " (SELECT rowid FROM " + table + " WHERE " +
               table + " MATCH ?)");
}

void QuerySql::AddQuestionFilters(const BankQuery& query, const std::vector<std::int64_t>* exams) {
  const std::string before = conditions_;
  if (exams != nullptr) {
    texts_.push_back(JsonListOf(*exams));
    AddCondition("question.exam IN (SELECT value FROM json_each(?))");
  }
  if (!query.kinds.empty()) {
    std::string list;
    for (const QuestionKind kind : query.kinds)
      list.append(list.empty() ? "" : ",").append(std::to_string(static_cast<int>(kind)));
    AddCondition("question.kind IN (" + list + ")");
  }
  if (query.hasFiles) AddCondition(*query.hasFiles ? "question.files > 0" : "question.files = 0");
  if (query.hasKey) AddCondition(*query.hasKey ? "question.has_key <> 0" : "question.has_key = 0");
  if (query.score) {
    AddCondition(query.score->isLeastIn ? "question.score >= ?" : "question.score > ?");
    numbers_.push_back(query.score->least);
    AddCondition(query.score->isMostIn ? "question.score <= ?" : "question.score < ?");
    numbers_.push_back(query.score->most);
  }
  const bool needsQuestion = conditions_ != before && source_.find("question") == std::string::npos;
  if (needsQuestion) source_ += " JOIN question ON question.id = " + identifier_;
}

void QuerySql::AddTagged(const TaggedQuestions& tagged) {
  // The "+" keeps the database from looking for the words once for each of these questions.
  const std::string identifier = (HasWords() ? "+" : "") + identifier_;
  if (tagged.wanted) {
    texts_.push_back(JsonListOf(*tagged.wanted));
    AddCondition(identifier + " IN (SELECT value FROM json_each(?))");
  }
  if (!tagged.unwanted.empty()) {
    texts_.push_back(JsonListOf(tagged.unwanted));
    AddCondition(identifier + " NOT IN (SELECT value FROM json_each(?))");
  }
}

void QuerySql::AddCondition(const std::string& condition) {
  conditions_ += (conditions_.empty() ? " WHERE " : " AND ") + condition;
}

void QuerySql::Bind(Statement& statement) const {
  int place = 1;
  for (const std::string& text : texts_) statement.BindText(place++, std::string_view(text));
  for (const double number : numbers_) statement.Bind(place++, number);
}

}  // namespace quorvantis

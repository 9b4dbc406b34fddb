// SPDX-License-Identifier: MIT
#include "bank/search/BankSearch.h"

#include "bank/index/BankFolders.h"
#include "bank/index/BankUpdate.h"
#include "bank/index/FileStamp.h"
#include "bank/index/FoldedText.h"
#include "bank/search/BankQuestions.h"
#include "bank/search/Highlights.h"
#include "bank/search/QuerySql.h"
#include "bank/search/UnchangedExams.h"
#include "text/PathText.h"

#include <algorithm>
#include <map>
#include <system_error>
#include <utility>

namespace quorvantis {
namespace fs = std::filesystem;
namespace {

bool HoldsAll(const std::u16string& folded, const std::vector<std::u16string>& parts) {
  return std::all_of(parts.begin(), parts.end(),
                     [&](const std::u16string& part) { return folded.find(part) != folded.npos; });
}

/// Whether a query allows questions of an exam.
bool Allows(const BankQuery& query, const BankExam& exam) {
  if (query.writtenFrom && exam.written < *query.writtenFrom) return false;
  if (query.writtenBefore && exam.written >= *query.writtenBefore) return false;
  if (!query.folders.empty() && !HoldsAll(FoldForSearch(PathToText(exam.path.parent_path())), query.folders))
    return false;
  if (query.exams.empty()) return true;
  const std::u16string name = FoldForSearch(PathToText(exam.path.filename()));
  return HoldsAll(name + kBetweenTexts + FoldForSearch(exam.title), query.exams);
}

/// The folders of the bank that are there now.
std::vector<fs::path> PresentFolders(const BankIndex& index) {
  std::vector<fs::path> folders = index.Folders();
  std::error_code ignored;
  std::erase_if(folders, [&](const fs::path& folder) { return !fs::is_directory(folder, ignored); });
  return folders;
}

/// The exams in which a query may find questions. Nothing if these are all.
std::optional<std::vector<std::int64_t>> SearchedExams(const BankIndex& index, const BankQuery& query) {
  const std::vector<fs::path> folders = PresentFolders(index);
  std::vector<std::int64_t> searched;
  bool areAll = true;
  const std::string sql = std::string("SELECT ") + kExamColumns + " FROM exam";
  Statement rows = index.Data().Prepare(sql);
  while (rows.Step()) {
    const BankExam exam = ExamFrom(rows, 0);
    const bool isPresent = std::any_of(folders.begin(), folders.end(),
                                       [&](const fs::path& folder) { return LiesIn(exam.path, folder); });
    if (isPresent && Allows(query, exam)) {
      searched.push_back(exam.id);
    } else {
      areAll = false;
    }
  }
  return areAll ? std::nullopt : std::optional(std::move(searched));
}

struct RankedQuestion {
  double rank;
  std::int64_t id;

  bool operator<(const RankedQuestion& other) const {
    return rank != other.rank ? rank < other.rank : id > other.id;
  }
};

QuerySql SqlOf(const BankIndex& index, const BankQuery& query) {
  const auto exams = SearchedExams(index, query);
  return {query, exams ? &*exams : nullptr};
}

std::vector<RankedQuestion> Rows(const BankIndex& index, const QuerySql& sql, const std::string& text) {
  Statement rows = index.Data().Prepare(text);
  sql.Bind(rows);
  std::vector<RankedQuestion> found;
  while (rows.Step()) found.push_back({rows.Real(1), rows.Integer(0)});
  return found;
}

std::size_t CountRows(const BankIndex& index, const QuerySql& sql) {
  const std::string text = sql.Count();
  Statement row = index.Data().Prepare(text);
  sql.Bind(row);
  return row.Step() ? static_cast<std::size_t>(row.Integer(0)) : 0;
}

/// Nobody reads on so far, and to rank all questions with a word that half of them have takes too long for
/// somebody who is typing.
constexpr std::size_t kMostRanked = 2'000;

}  // namespace

/// The hits of one look at the index; `total` as it is there.
BankHits BankSearch::FindOnce(const BankQuery& query, std::size_t limit, std::size_t offset) const {
  const QuerySql sql = SqlOf(index_, query);
  const std::size_t most = std::max(kMostRanked, limit + offset);
  std::vector<RankedQuestion> found = Rows(index_, sql, sql.Ranked(most));
  BankHits hits;
  hits.total = found.size() < most ? found.size() : CountRows(index_, sql);
  const std::size_t begin = std::min(offset, found.size());
  const std::size_t end = begin + std::min(limit, found.size() - begin);
  const auto at = [&found](std::size_t place) { return found.begin() + static_cast<std::ptrdiff_t>(place); };
  std::partial_sort(found.begin(), at(end), found.end());
  BankQuestions rows(index_);
  for (auto ranked = at(begin); ranked != at(end); ++ranked) {
    std::optional<BankQuestion> question = rows.Read(ranked->id);
    if (question) hits.hits.push_back({std::move(*question), {}});
  }
  return hits;
}

/// Brings exams of the hits up to date. Returns whether any of them had changed.
bool BankSearch::Refresh(BankHits& hits) const {
  UnchangedExams unchanged(index_, digest_);
  std::map<fs::path, bool> isAsShown;  // of each exam
  bool hasChanged = false;
  for (const BankHit& hit : hits.hits) {
    const BankExam& exam = hit.question.exam;
    const auto [known, isNew] = isAsShown.try_emplace(exam.path, true);
    if (!isNew) continue;
    const FileStamp shown{exam.size, exam.written};
    if (FileStamp::Of(exam.path) == shown && exam.isSettled) continue;
    if (!hits.problem.IsAnything())
      hasChanged |= RefreshExam(index_, services_, digest_, exam.path, hits.problem);
    known->second = hits.problem.IsAnything() ? unchanged.Has(exam) : FileStamp::Of(exam.path) == shown;
  }
  // Who cannot write the index can search it all the same.
  if (hits.problem.trouble != BankTrouble::Damaged) hits.problem = {};
  if (!hasChanged)
    std::erase_if(hits.hits, [&](const BankHit& hit) { return !isAsShown[hit.question.exam.path]; });
  return hasChanged;
}

BankHits BankSearch::Find(const BankQuery& query, std::size_t limit, std::size_t offset) {
  constexpr int kMostRounds = 4;  // somebody may be saving exams all the time
  try {
    for (int round = 1;; ++round) {
      BankHits hits = FindOnce(query, limit, offset);
      const bool hasChanged = Refresh(hits);
      if (hasChanged && round < kMostRounds) continue;
      if (hasChanged) hits.hits.clear();
      for (BankHit& hit : hits.hits) hit.highlights = HighlightsOf(hit.question, query);
      return hits;
    }
  } catch (const DatabaseError& error) {
    BankHits hits;
    hits.problem = index_.ProblemAfter(error);
    return hits;
  }
}

std::vector<std::int64_t> BankSearch::FindAll(const BankQuery& query, BankProblem& problem) const {
  std::vector<std::int64_t> identifiers;
  try {
    const QuerySql sql = SqlOf(index_, query);
    const std::vector<RankedQuestion> found = Rows(index_, sql, sql.Unranked());
    identifiers.reserve(found.size());
    for (const RankedQuestion& question : found) identifiers.push_back(question.id);
  } catch (const DatabaseError& error) {
    problem = index_.ProblemAfter(error);
  }
  return identifiers;
}

std::optional<BankQuestion> BankSearch::Question(std::int64_t id, BankProblem& problem) const {
  try {
    return BankQuestions(index_).Read(id);
  } catch (const DatabaseError& error) {
    problem = index_.ProblemAfter(error);
    return std::nullopt;
  }
}

}  // namespace quorvantis

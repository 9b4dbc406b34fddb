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
#include "model/document/ExamServices.h"
#include "platform/Progress.h"
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

/// The exams in which a query may find questions; `areAll` if there are no others.
std::vector<BankExam> SearchedExams(const BankIndex& index, const BankQuery& query, bool& areAll) {
  const std::vector<fs::path> folders = PresentFolders(index);
  std::vector<BankExam> searched;
  areAll = true;
  const std::string sql = std::string("SELECT ") + kExamColumns + " FROM exam";
  Statement rows = index.Data().Prepare(sql);
  while (rows.Step()) {
    BankExam exam = ExamFrom(rows, 0);
    const bool isPresent = std::any_of(folders.begin(), folders.end(),
                                       [&](const fs::path& folder) { return LiesIn(exam.path, folder); });
    if (isPresent && Allows(query, exam)) {
      searched.push_back(std::move(exam));
    } else {
      areAll = false;
    }
  }
  return searched;
}

struct RankedQuestion {
  double rank;
  std::int64_t id;

  bool operator<(const RankedQuestion& other) const {
    return rank != other.rank ? rank < other.rank : id > other.id;
  }
};

QuerySql SqlOf(const BankIndex& index, const BankQuery& query, FolderTags& tags,
               std::vector<UnreadTags>& unread) {
  bool areAll = true;
  const std::vector<BankExam> exams = SearchedExams(index, query, areAll);
  TaggedQuestions tagged = FindTagged(index, query, exams, tags);
  unread = std::move(tagged.unread);
  std::vector<std::int64_t> identifiers;
  identifiers.reserve(exams.size());
  for (const BankExam& exam : exams) identifiers.push_back(exam.id);
  return {query, areAll ? nullptr : &identifiers, tagged};
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

BankSearch::BankSearch(BankIndex& index, ExamServices& services, const FileDigest& digest,
                       std::shared_ptr<FolderTags> tags)
    : index_(index),
      services_(services),
      digest_(digest),
      tags_(tags ? std::move(tags) : std::make_shared<FolderTags>(services.files)) {}

/// The hits of one look at the index; `total` as it is there.
BankHits BankSearch::FindOnce(const BankQuery& query, std::size_t limit, std::size_t offset) const {
  BankHits hits;
  const QuerySql sql = SqlOf(index_, query, *tags_, hits.unreadTags);
  const std::size_t most = std::max(kMostRanked, limit + offset);
  std::vector<RankedQuestion> found = Rows(index_, sql, sql.Ranked(most));
  hits.total = found.size() < most ? found.size() : CountRows(index_, sql);
  const std::size_t begin = std::min(offset, found.size());
  const std::size_t end = begin + std::min(limit, found.size() - begin);
  const auto at = [&found](std::size_t place) { return found.begin() + static_cast<std::ptrdiff_t>(place); };
  std::partial_sort(found.begin(), at(end), found.end());
  BankQuestions rows(index_);
  for (auto ranked = at(begin); ranked != at(end); ++ranked) {
    std::optional<BankQuestion> question = rows.Read(ranked->id);
    if (question) hits.hits.push_back({std::move(*question), {}, {}});
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
    if (services_.progress.IsCancelled()) return false;
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

void BankSearch::AddDetails(const BankQuery& query, BankHits& hits) const {
  std::map<fs::path, std::shared_ptr<const TagsOfFolder>> folders;
  for (BankHit& hit : hits.hits) {
    hit.highlights = HighlightsOf(hit.question, query);
    auto& tags = folders[hit.question.exam.path.parent_path()];
    if (!tags) tags = tags_->Of(hit.question.exam.path.parent_path());
    hit.tags = tags->Of(hit.question.key);
  }
}

BankHits BankSearch::Find(const BankQuery& query, std::size_t limit, std::size_t offset) {
  constexpr int kMostRounds = 4;  // somebody may be saving exams all the time
  try {
    for (int round = 1;; ++round) {
      BankHits hits = FindOnce(query, limit, offset);
      const bool hasChanged = Refresh(hits);
      if (services_.progress.IsCancelled()) return {};
      if (hasChanged && round < kMostRounds) continue;
      if (hasChanged) hits.hits.clear();
      AddDetails(query, hits);
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
    std::vector<UnreadTags> ignored;
    const QuerySql sql = SqlOf(index_, query, *tags_, ignored);
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

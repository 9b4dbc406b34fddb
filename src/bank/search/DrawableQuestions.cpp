// SPDX-License-Identifier: MIT
#include "bank/search/DrawableQuestions.h"

#include "bank/index/FileStamp.h"
#include "bank/search/BankMemory.h"
#include "bank/search/BankQuestions.h"

#include <algorithm>
#include <string>
#include <system_error>
#include <utility>

namespace quorvantis {
namespace {

/// True for every file if `folder` is empty.
bool IsBelow(const std::filesystem::path& file, const std::filesystem::path& folder) {
  return std::mismatch(folder.begin(), folder.end(), file.begin(), file.end()).first == folder.end();
}

}  // namespace

DrawableQuestions::DrawableQuestions(BankIndex& index, Files& files, const std::filesystem::path& folder)
    : index_(index) {
  try {
    ReadCandidates(ReadOrigins(files, folder));
  } catch (const DatabaseError& error) {
    problem_ = index.ProblemAfter(error);
  }
}

/// By the identifier of the exam, for those whose file is there.
std::map<std::int64_t, DrawableQuestions::Origin> DrawableQuestions::ReadOrigins(
    Files& files, const std::filesystem::path& folder) {
  std::map<std::int64_t, Origin> origins;
  for (const BankExam& exam : index_.Exams(problem_)) {
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(exam.path, ignored)) continue;
    origins[exam.id] = {LocalDay(exam.written), &TagsOf(exam.path.parent_path(), files),
                        IsBelow(exam.path, folder)};
  }
  return origins;
}

const TagEntries& DrawableQuestions::TagsOf(const std::filesystem::path& folder, Files& files) {
  const auto [known, isNew] = tags_.try_emplace(folder);
  if (!isNew) return known->second;
  const TagFile file(folder, files);
  TagResult result;
  known->second = file.Read(result);
  if (!result.IsRead()) unread_.push_back({file.Path(), result});
  return known->second;
}

void DrawableQuestions::ReadCandidates(const std::map<std::int64_t, Origin>& origins) {
  Statement rows = index_.Data().Prepare(
      "SELECT question.id, question.exam, kind, key, sketch FROM question "
      "JOIN content ON content.question = question.id JOIN exam ON exam.id = question.exam "
      "ORDER BY exam.path, question.number");
  while (rows.Step()) {
    const auto origin = origins.find(rows.Integer(1));
    const auto sketch = QuestionSketch::FromBytes(rows.Bytes(4));
    if (origin == origins.end() || !sketch || sketch->IsEmpty()) continue;
    DrawCandidate candidate{std::string(rows.Bytes(3)),
                            static_cast<QuestionKind>(rows.Integer(2)),
                            {},
                            origin->second.day,
                            *sketch,
                            origin->second.isOffered};
    const auto entry = origin->second.tags->find(candidate.key);
    if (entry != origin->second.tags->end()) candidate.tags = entry->second.tags;
    candidates_.push_back(std::move(candidate));
    identifiers_.push_back(rows.Integer(0));
  }
}

std::optional<BankQuestion> DrawableQuestions::Question(std::size_t candidate) const {
  return BankQuestions(index_).Read(identifiers_[candidate]);
}

ComparedQuestion DrawableQuestions::ComparedAt(std::size_t candidate) const {
  const std::optional<BankQuestion> question = Question(candidate);
  return ComparedQuestion(question ? ContentOfHit(*question) : QuestionContent());
}

}  // namespace quorvantis

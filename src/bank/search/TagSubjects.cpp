// SPDX-License-Identifier: MIT
#include "bank/search/TagSubjects.h"

#include "bank/search/BankMemory.h"
#include "likeness/QuestionRelation.h"

#include <algorithm>
#include <map>
#include <set>

namespace quorvantis {

bool CanHaveTags(const BankQuestion& question) {
  return !ShinglesOf(ContentOfHit(question)).IsEmpty();
}

TagStep StepFor(const std::vector<BankQuestion>& questions, const std::vector<std::u16string>& add,
                const std::vector<std::u16string>& remove) {
  std::map<std::filesystem::path, std::map<std::string, TagChange>> folders;  // by key
  for (const BankQuestion& question : questions) {
    auto& changes = folders[question.exam.path.parent_path()];
    if (changes.contains(question.key)) continue;
    const Shingles shingles = ShinglesOf(ContentOfHit(question));
    if (shingles.IsEmpty()) continue;
    changes[question.key] = {question.key, question.text, QuestionSketch(shingles), add, remove};
  }
  TagStep step;
  for (auto& [folder, changes] : folders) {
    if (changes.empty()) continue;
    FolderChange change{folder, {}};
    change.changes.reserve(changes.size());
    for (auto& [key, one] : changes) change.changes.push_back(std::move(one));
    step.push_back(std::move(change));
  }
  return step;
}

std::vector<std::u16string> EarlierTags(const BankQuestion& question, const TagsOfFolder& tags) {
  if (tags.Entries().empty() || !tags.Of(question.key).empty()) return {};
  const Shingles shingles = ShinglesOf(ContentOfHit(question));
  if (shingles.IsEmpty()) return {};
  const auto found = FindTags(tags.Entries(), question.key, QuestionSketch(shingles));
  return found ? tags.Of(found->key) : std::vector<std::u16string>();
}

std::vector<std::u16string> KnownTags(const BankIndex& index, FolderTags& tags,
                                      const std::function<bool()>& isCancelled) {
  BankProblem ignored;
  std::set<std::filesystem::path> folders;
  for (const BankExam& exam : index.Exams(ignored)) folders.insert(exam.path.parent_path());
  std::map<std::u16string, std::u16string> spellings;
  for (const std::filesystem::path& folder : folders) {
    if (isCancelled && isCancelled()) break;
    const auto some = tags.Of(folder);
    spellings.insert(some->Spellings().begin(), some->Spellings().end());
  }
  std::vector<std::u16string> known;
  known.reserve(spellings.size());
  for (const auto& [folded, tag] : spellings) known.push_back(tag);
  return known;
}

}  // namespace quorvantis

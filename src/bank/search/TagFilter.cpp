// SPDX-License-Identifier: MIT
#include "bank/search/TagFilter.h"

#include <algorithm>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>

namespace quorvantis {
namespace {

using Keys = std::set<std::string_view>;

/// Whether some tag is asked for, so that only questions with tags come.
bool AsksForTags(const BankQuery& query) {
  return query.hasTags.value_or(false) || std::any_of(query.tags.begin(), query.tags.end(),
                                                      [](const BankTag& tag) { return !tag.isExcluded; });
}

void KeepCommon(Keys& keys, const Keys& others) {
  std::erase_if(keys, [&others](std::string_view key) { return !others.contains(key); });
}

/// The keys of a folder that are wanted, or with `isWanted` false those that are not.
Keys KeysFor(const BankQuery& query, const TagsOfFolder& tags, bool isWanted) {
  const bool isWithout = query.hasTags == false;
  Keys keys;
  if (isWanted != isWithout) keys = tags.Tagged();
  for (const BankTag& tag : query.tags) {
    const Keys those = tags.With(tag);
    if (!isWanted) {
      keys.insert(those.begin(), those.end());
    } else if (!tag.isExcluded) {
      KeepCommon(keys, those);
    } else {
      for (const std::string_view key : those) keys.erase(key);
    }
  }
  return keys;
}

/// The keys of a folder, held alive by its tags.
struct FolderKeys {
  std::shared_ptr<const TagsOfFolder> tags;
  Keys keys;
};

using KeysByFolder = std::map<std::filesystem::path, FolderKeys>;

/// JSON of content keys, which are hexadecimal digits.
std::string ListOf(const KeysByFolder& folders) {
  Keys all;
  for (const auto& [path, folder] : folders) all.insert(folder.keys.begin(), folder.keys.end());
  std::string list = "[";
  for (const std::string_view key : all) list.append(list.size() > 1 ? ",\"" : "\"").append(key).append("\"");
  return list + "]";
}

/// The questions with the keys of their folder, ascending.
std::vector<std::int64_t> QuestionsWith(const BankIndex& index, const KeysByFolder& folders,
                                        const std::unordered_map<std::int64_t, const Keys*>& keysOfExam) {
  std::vector<std::int64_t> questions;
  Statement rows = index.Data().Prepare(
      "SELECT question.id, question.exam, content.key FROM json_each(?) AS wanted "
      "CROSS JOIN content ON content.key = wanted.value JOIN question ON question.id = content.question");
  const std::string list = ListOf(folders);
  rows.BindText(1, std::string_view(list));
  while (rows.Step()) {
    const auto keys = keysOfExam.find(rows.Integer(1));
    if (keys != keysOfExam.end() && keys->second->contains(rows.Bytes(2)))
      questions.push_back(rows.Integer(0));
  }
  std::sort(questions.begin(), questions.end());
  return questions;
}

}  // namespace

TaggedQuestions FindTagged(const BankIndex& index, const BankQuery& query, const std::vector<BankExam>& exams,
                           FolderTags& tags) {
  TaggedQuestions tagged;
  if (query.tags.empty() && !query.hasTags) return tagged;
  const bool isWanted = AsksForTags(query);
  KeysByFolder folders;
  std::unordered_map<std::int64_t, const Keys*> keysOfExam;
  for (const BankExam& exam : exams) {
    const auto [folder, isNew] = folders.try_emplace(exam.path.parent_path());
    if (isNew) {
      folder->second.tags = tags.Of(folder->first);
      folder->second.keys = KeysFor(query, *folder->second.tags, isWanted);
      if (folder->second.tags->Unread()) tagged.unread.push_back(*folder->second.tags->Unread());
    }
    if (!folder->second.keys.empty()) keysOfExam.emplace(exam.id, &folder->second.keys);
  }
  std::vector<std::int64_t> questions = QuestionsWith(index, folders, keysOfExam);
  if (isWanted) {
    tagged.wanted = std::move(questions);
  } else {
    tagged.unwanted = std::move(questions);
  }
  return tagged;
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "bank/search/FolderTags.h"

#include "bank/index/FoldedText.h"

#include <utility>

namespace quorvantis {

TagsOfFolder::TagsOfFolder(TagEntries entries, UnreadTags unread) : entries_(std::move(entries)) {
  if (!unread.result.IsRead()) unread_ = std::move(unread);
  for (const auto& [key, entry] : entries_) {
    for (const std::u16string& tag : entry.tags) {
      const std::u16string folded = FoldForSearch(tag);
      keys_[folded].push_back(key);
      spellings_.emplace(folded, tag);
    }
  }
}

const std::vector<std::u16string>& TagsOfFolder::Of(std::string_view key) const {
  static const std::vector<std::u16string> kNone;
  const auto entry = entries_.find(key);
  return entry == entries_.end() ? kNone : entry->second.tags;
}

std::set<std::string_view> TagsOfFolder::Tagged() const {
  std::set<std::string_view> tagged;
  for (const auto& [key, entry] : entries_) {
    if (!entry.tags.empty()) tagged.emplace_hint(tagged.end(), key);
  }
  return tagged;
}

std::set<std::string_view> TagsOfFolder::With(const BankTag& tag) const {
  std::set<std::string_view> keys;
  for (auto at = keys_.lower_bound(tag.folded); at != keys_.end(); ++at) {
    const bool isWanted = tag.isBegun ? at->first.starts_with(tag.folded) : at->first == tag.folded;
    if (!isWanted) break;
    keys.insert(at->second.begin(), at->second.end());
  }
  return keys;
}

std::shared_ptr<const TagsOfFolder> FolderTags::Of(const std::filesystem::path& folder) {
  static const auto kNoTags = std::make_shared<const TagsOfFolder>();
  const std::filesystem::path file = folder / kTagFileName;
  std::error_code ignored;
  const auto stamp = FileStamp::Of(file);
  const std::lock_guard lock(mutex_);
  if (!stamp && !std::filesystem::exists(file, ignored)) {
    remembered_.erase(folder);
    return kNoTags;
  }
  const auto known = remembered_.find(folder);
  if (stamp && known != remembered_.end() && known->second.isSettled && known->second.stamp == *stamp)
    return known->second.tags;
  auto tags = Read(folder);
  if (!stamp) return tags;
  const bool isSettled = stamp->IsSettled();
  remembered_[folder] = {*stamp, isSettled, tags};
  return tags;
}

std::shared_ptr<const TagsOfFolder> FolderTags::Read(const std::filesystem::path& folder) const {
  const TagFile file(folder, files_);
  UnreadTags unread{file.Path(), {}};
  TagEntries entries = file.Read(unread.result);
  return std::make_shared<const TagsOfFolder>(std::move(entries), std::move(unread));
}

}  // namespace quorvantis

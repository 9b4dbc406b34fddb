// SPDX-License-Identifier: MIT
#pragma once

#include "bank/index/FileStamp.h"
#include "bank/search/BankQuery.h"
#include "bank/tags/TagFile.h"

#include <cstddef>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// A file of tags that could not be read, so that its folder counts as one without tags.
struct UnreadTags {
  std::filesystem::path file;
  TagResult result;
};

/// What the file of tags of one folder says, ready to be searched. It never changes.
class TagsOfFolder {
 public:
  TagsOfFolder() = default;
  TagsOfFolder(TagEntries entries, UnreadTags unread);

  const TagEntries& Entries() const { return entries_; }

  /// The tags of a question; none if the file does not know it.
  const std::vector<std::u16string>& Of(std::string_view key) const;

  /// Each tag that a question has, by its folded form.
  const std::map<std::u16string, std::u16string>& Spellings() const { return spellings_; }

  /// The keys of the questions that have a tag.
  std::set<std::string_view> Tagged() const;
  /// Those of the questions with this tag.
  std::set<std::string_view> With(const BankTag& tag) const;

  /// Nothing if the file was read, or does not exist.
  const std::optional<UnreadTags>& Unread() const { return unread_; }

 private:
  TagEntries entries_;
  std::map<std::u16string, std::vector<std::string>> keys_;  // by the folded form of the tag
  std::map<std::u16string, std::u16string> spellings_;       // likewise
  std::optional<UnreadTags> unread_;
};

/// Remembers the files of tags of many folders, and reads one again when it has changed. May be used by
/// several threads at once.
class FolderTags {
 public:
  /// `files` must outlive this.
  explicit FolderTags(Files& files) : files_(files) {}

  /// Never null.
  std::shared_ptr<const TagsOfFolder> Of(const std::filesystem::path& folder);

 private:
  struct Remembered {
    FileStamp stamp;
    bool isSettled = false;  ///< false if the file may have changed since without another stamp
    std::shared_ptr<const TagsOfFolder> tags;
  };

  std::shared_ptr<const TagsOfFolder> Read(const std::filesystem::path& folder) const;

  Files& files_;
  std::mutex mutex_;
  std::map<std::filesystem::path, Remembered> remembered_;  // by folder
};

}  // namespace quorvantis

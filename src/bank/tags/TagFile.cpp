// SPDX-License-Identifier: MIT
#include "bank/tags/TagFile.h"

#include "bank/tags/TagJson.h"
#include "platform/WholeFile.h"
#include "platform/posix/FileLock.h"

#include <algorithm>
#include <chrono>
#include <iterator>
#include <utility>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMostBytesOfTags = std::size_t{64} * 1024 * 1024;
constexpr std::chrono::seconds kPatienceForTags(10);

/// The content of the file; nothing with `result` set if it is damaged or cannot be read.
std::optional<TagJson> Load(const fs::path& file, TagResult& result) {
  const std::optional<std::string> bytes = ReadWholeFile(file, kMostBytesOfTags);
  if (!bytes) {
    std::error_code error;
    const bool isFile = fs::is_regular_file(file, error);
    const auto size = isFile ? fs::file_size(file, error) : 0;
    const auto reason = size > kMostBytesOfTags ? std::errc::file_too_large : std::errc::permission_denied;
    result = {TagOutcome::NotRead,
              std::make_error_code(isFile ? reason : std::errc::invalid_argument).message()};
    return std::nullopt;
  }
  std::string reason;
  std::optional<TagJson> json = TagJson::Parse(*bytes, reason);
  if (!json) {
    result = {TagOutcome::Damaged, reason};
  } else if (json->IsNewer()) {
    result = {TagOutcome::Newer, {}};
  } else {
    result = {};
  }
  return json;
}

/// Runs `work` while no other program changes the file.
TagResult WithLock(const fs::path& file, const std::function<TagResult()>& work) {
  std::error_code error;
  const auto lock = FileLock::Take(file, kPatienceForTags, error);
  if (!lock) {
    const bool isBusy = error == std::errc::timed_out;
    return {isBusy ? TagOutcome::Busy : TagOutcome::NotWritten, error.message()};
  }
  TagResult result = work();
  if (lock->HasCreated() && fs::is_empty(file, error)) fs::remove(file, error);
  return result;
}

/// Those of `tags` that `others` lack.
std::vector<std::u16string> Without(const std::vector<std::u16string>& tags,
                                    const std::vector<std::u16string>& others) {
  std::vector<std::u16string> rest;
  std::set_difference(tags.begin(), tags.end(), others.begin(), others.end(), std::back_inserter(rest));
  return rest;
}

fs::path FreeName(const fs::path& file) {
  for (int number = 1;; ++number) {
    fs::path name = file;
    name.replace_extension("damaged-" + std::to_string(number) + ".json");
    std::error_code error;
    if (fs::symlink_status(name, error).type() == fs::file_type::not_found) return name;
  }
}

}  // namespace

TagFile::TagFile(fs::path folder, Files& files) : file_(std::move(folder) / kTagFileName), files_(files) {}

TagEntries TagFile::Read(TagResult& result) const {
  const std::optional<TagJson> json = Load(file_, result);
  return json ? json->Entries() : TagEntries();
}

TagResult TagFile::Change(const std::vector<TagChange>& changes, std::vector<TagChange>* undo) {
  std::vector<TagChange> back;
  const TagResult result = Rewrite([&](TagJson& json) {
    for (const TagChange& change : changes) {
      const std::vector<std::u16string> before = json.TagsAt(change.key);
      json.Apply(change);
      const std::vector<std::u16string> after = json.TagsAt(change.key);
      if (before != after)
        back.push_back(
            {change.key, change.text, change.sketch, Without(before, after), Without(after, before)});
    }
  });
  if (undo == nullptr) return result;
  undo->clear();
  if (result.IsDone()) undo->assign(back.rbegin(), back.rend());
  return result;
}

TagResult TagFile::Carry(const std::string& oldKey, const TagChange& edited) {
  return Rewrite([&](TagJson& json) {
    const TagEntries entries = json.Entries();
    const auto old = entries.find(oldKey);
    TagChange change = edited;
    if (old != entries.end()) {
      change.add.insert(change.add.end(), old->second.tags.begin(), old->second.tags.end());
    }
    json.Apply(change);
  });
}

TagResult TagFile::Rewrite(const std::function<void(TagJson&)>& change) {
  return WithLock(file_, [&] {
    TagResult result;
    std::optional<TagJson> json = Load(file_, result);
    if (!json || !result.IsDone()) return result;
    const std::string before = json->Bytes();
    change(*json);
    if (json->Bytes() == before) return result;
    const std::error_code error = SaveWholeFile(files_, file_, json->Bytes());
    return error ? TagResult{TagOutcome::NotWritten, error.message()} : result;
  });
}

TagResult TagFile::KeepAside(fs::path& aside) {
  aside.clear();
  return WithLock(file_, [&] {
    TagResult result;
    Load(file_, result);
    if (result.outcome != TagOutcome::Damaged) return result;
    const fs::path name = FreeName(file_);
    std::error_code error;
    fs::rename(file_, name, error);
    if (error) return TagResult{TagOutcome::NotWritten, error.message()};
    aside = name;
    return TagResult();
  });
}

}  // namespace quorvantis

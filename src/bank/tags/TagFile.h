// SPDX-License-Identifier: MIT
#pragma once

#include "bank/tags/TagEntry.h"
#include "platform/Files.h"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace quorvantis {

class TagJson;

/// The name of the file that holds the tags of the questions of a folder's exams.
inline constexpr const char* kTagFileName = "quorvantis-tags.json";

/// How a look at the file, or a change of it, has ended.
enum class TagOutcome {
  Done,
  Damaged,     ///< not what this program writes; it is left as it is until KeepAside
  Newer,       ///< written by a newer program: read as far as possible, but not changed
  NotRead,     ///< it exists, but cannot be read
  NotWritten,  ///< nothing has changed
  Busy,        ///< another program holds it
};

struct TagResult {
  TagOutcome outcome = TagOutcome::Done;
  std::string reason;  ///< the system's words, or where the file is damaged; empty when done

  bool IsDone() const { return outcome == TagOutcome::Done; }
  /// Of a look at the file: whether it has told its tags.
  bool IsRead() const { return IsDone() || outcome == TagOutcome::Newer; }
};

/// What is to become of the tags of a question. Changes are made to what the file holds at that moment, so
/// that two programs at once lose nothing.
struct TagChange {
  std::string key;                     ///< QuestionContentKey
  std::u16string text;                 ///< of the question; its first words are kept for readers of the file
  QuestionSketch sketch;               ///< kept in short, to find the tags when the question was edited
  std::vector<std::u16string> add;     ///< see CleanTag
  std::vector<std::u16string> remove;  ///< those that are not there are passed over
};

/// The tags of a folder: a JSON file beside its exams, for people to read and to edit. They move with the
/// folder, and are never kept in exam files. What this program does not know in it stays.
/// docs/BANK-QUESTIONS.md shows its form. Every call looks at the file anew; a missing file is one without
/// tags.
class TagFile {
 public:
  /// `files` must outlive this.
  TagFile(std::filesystem::path folder, Files& files);

  /// The entries in the order of their keys. Empty with `result` set unless it is Done or Newer.
  TagEntries Read(TagResult& result) const;

  /// Makes all changes, or none. Waits for other programs, at most ten seconds. `undo`, if not null, gets the
  /// changes that take these back: only what they have really given and taken.
  TagResult Change(const std::vector<TagChange>& changes, std::vector<TagChange>* undo = nullptr);

  /// After a question was edited: the tags of `oldKey` are those of `newKey`, too. Those of `oldKey` stay,
  /// since other exams may still have the question as it was.
  TagResult Carry(const std::string& oldKey, const TagChange& edited);

  /// Renames a damaged file, to "quorvantis-tags.damaged-1.json" or the next free number, which `aside` gets;
  /// then tags can be written again. A file that is not damaged stays.
  TagResult KeepAside(std::filesystem::path& aside);

  const std::filesystem::path& Path() const { return file_; }

 private:
  TagResult Rewrite(const std::function<void(TagJson&)>& change);

  std::filesystem::path file_;
  Files& files_;
};

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <vector>

namespace quorvantis {

/// A second name of a file, under which it stays when the first name is deleted or given to another file. The
/// second name goes with this object.
class KeptFile {
 public:
  /// `name` exists already and belongs to this object.
  explicit KeptFile(std::filesystem::path name) : name_(std::move(name)) {}
  ~KeptFile();
  KeptFile(const KeptFile&) = delete;
  KeptFile& operator=(const KeptFile&) = delete;

  const std::filesystem::path& Name() const { return name_; }

  /// Whether `file` is this file.
  bool Is(const std::filesystem::path& file) const;

  /// Makes `file` this file again. False when that fails; what is there then may be gone.
  bool PutBack(const std::filesystem::path& file) const;

 private:
  std::filesystem::path name_;
};

using SharedFile = std::shared_ptr<const KeptFile>;

/// A file of an exam that a step has replaced, deleted or brought: null is "no file of this exam".
struct FileChange {
  std::filesystem::path file;
  SharedFile before;
  SharedFile after;
};

/// Keeps the work copies of the exam in the editor by hard links, so that a step that deletes or replaces one
/// can be undone (History says in which folder). File systems without hard links get copies, of files up to
/// kLargestCopy.
class KeptFiles {
 public:
  static constexpr std::uintmax_t kLargestCopy = std::uintmax_t{64} * 1024 * 1024;  ///< bytes

  /// `folder` belongs to this object alone: created when needed, emptied before, removed at the end.
  explicit KeptFiles(std::filesystem::path folder) : folder_(std::move(folder)) {}
  ~KeptFiles();
  KeptFiles(const KeptFiles&) = delete;
  KeptFiles& operator=(const KeptFiles&) = delete;

  /// From now on the exam has these files. Returns what has changed since the last call. Files that another
  /// program has replaced under the same name count only with `replaced`.
  std::vector<FileChange> Follow(const std::vector<std::filesystem::path>& files, bool replaced);

  /// Puts back the files of the exam that have been deleted or replaced since.
  void PutBack() const;

  /// The files are as they were before (or after) these changes. Returns those that could not be put back.
  std::vector<std::filesystem::path> Take(std::vector<FileChange>& changes, bool after);

 private:
  SharedFile Keep(const std::filesystem::path& file);

  std::filesystem::path folder_;
  std::map<std::filesystem::path, SharedFile> now_;  ///< of the exam in the editor
  int lastName_ = 0;
};

}  // namespace quorvantis

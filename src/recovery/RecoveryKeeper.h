// SPDX-License-Identifier: MIT
#pragma once

#include "editor/ExamEditor.h"
#include "editor/UnsavedWork.h"
#include "recovery/ExamSnapshot.h"
#include "recovery/RecoveryFolder.h"

#include <cstddef>
#include <filesystem>
#include <future>
#include <map>
#include <optional>
#include <system_error>

namespace quorvantis {

/// Keeps a recovery copy of the exam in an editor while anything in it differs from its file. Nobody reports
/// changes: the keeper looks for them, so it misses none, not even those without a star in the title. The
/// copy is removed when the exam is saved or its changes are given up, and stays if the editor ends in any
/// other way. It is written in the background.
class RecoveryKeeper : public UnsavedWork {
 public:
  /// The editor must outlive the keeper, which sleeps until Entered or Restored.
  explicit RecoveryKeeper(ExamEditor& editor);
  ~RecoveryKeeper() override;
  RecoveryKeeper(const RecoveryKeeper&) = delete;
  RecoveryKeeper& operator=(const RecoveryKeeper&) = delete;

  /// Writes or removes the copy if the exam has changed since the last look. Call this about once a second,
  /// from the thread of the editor; it takes milliseconds. Does nothing while a copy is being written.
  void Look();

  /// The copy on the disk is up to date when this returns, if it can be written at all.
  void LookAndWait();

  /// Why the last attempt to write a copy failed; every look tries again. No error when the copy exists, or
  /// is no longer needed.
  std::error_code Failure() const { return failure_; }

  /// The exam in the editor comes from this copy, which is replaced and removed from now on; an empty path
  /// leaves it as it is.
  void Restored(const std::filesystem::path& copy);

  void Saved() override;
  void Left(Parting parting) override;
  void Entered() override;

 private:
  void Wait();
  void Write(ExamSnapshot snapshot);
  void NoteFile();
  bool DiffersFromFile(const ExamSnapshot& snapshot) const;

  ExamEditor& editor_;
  RecoveryFolder folder_;  ///< used by the background write while there is one
  std::future<std::error_code> writing_;
  std::error_code failure_;          ///< of the last write
  std::optional<std::size_t> seen_;  ///< state of the last snapshot, unless it must be checked again
  std::size_t size_ = 0;             ///< of the last snapshot
  /// Hashes of the exams in the files that this run has opened or saved, and of a new exam. All of them,
  /// since undoing an import brings back an earlier exam.
  std::map<std::filesystem::path, std::size_t> inFiles_;
  bool asleep_ = true;
};

}  // namespace quorvantis

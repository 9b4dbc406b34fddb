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
/// changes: the keeper looks, so that none is missed, whether or not the window tells of it with a star. The
/// copy goes when the exam has been saved or its changes were given up, and stays however else the editor
/// ends. It is written in the background.
class RecoveryKeeper : public UnsavedWork {
 public:
  /// The editor must outlive the keeper, which sleeps until Entered or Restored.
  explicit RecoveryKeeper(ExamEditor& editor);
  ~RecoveryKeeper() override;
  RecoveryKeeper(const RecoveryKeeper&) = delete;
  RecoveryKeeper& operator=(const RecoveryKeeper&) = delete;

  /// Has the copy written or removed if the exam has changed since the last look. To be called about every
  /// second, from the thread of the editor; takes milliseconds. While a copy is being written, nothing
  /// happens.
  void Look();

  /// The copy on the disk is up to date when this returns, if it can be written at all.
  void LookAndWait();

  /// Why the last attempt to write a copy failed; it is repeated with every look. None when the copy is
  /// there, or none is needed any more.
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
  RecoveryFolder folder_;  ///< belongs to the writing as long as there is one
  std::future<std::error_code> writing_;
  std::error_code failure_;          ///< of the last writing
  std::optional<std::size_t> seen_;  ///< state of the last snapshot, unless that must be looked at again
  std::size_t size_ = 0;             ///< of the last snapshot
  /// Substance of what the files hold that this run has opened or saved, and of a new exam. All of them,
  /// since an import that is undone brings an earlier exam back.
  std::map<std::filesystem::path, std::size_t> inFiles_;
  bool asleep_ = true;
};

}  // namespace quorvantis

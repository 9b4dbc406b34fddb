// SPDX-License-Identifier: MIT
#pragma once

#include "bank/index/BankIndex.h"

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <memory>
#include <vector>

namespace quorvantis {

class FileDigest;
class Progress;
struct ExamServices;

/// What an update has done so far.
struct BankUpdateReport {
  std::size_t filesSeen = 0;   ///< of all kinds
  std::size_t examsFound = 0;  ///< files named ".exm"
  std::size_t examsDone = 0;   ///< of these: known to be unchanged, or read
  bool areAllFound = false;    ///< whether all folders have been listed
  std::size_t added = 0;
  std::size_t changed = 0;
  std::size_t removed = 0;
  std::vector<std::filesystem::path> unreadableFolders;  ///< and those of the bank that are not there
  BankProblem problem;                                   ///< that has ended the update early
  bool isCancelled = false;
};

/// Brings the index up to date with the folders of the bank. Works in small slices, so that a window stays
/// alive; each exam is one transaction, so that nothing is half in the index, whenever the update ends. Links
/// to folders are followed, each folder is read once. Hidden files and folders are passed over. What lies in
/// a folder of the bank that is not there now, such as that of a disk that was unplugged, is kept.
class BankUpdate {
 public:
  /// All must outlive the update. `services` are those of the program; nothing is shown, and nothing is
  /// written to a work folder.
  BankUpdate(BankIndex& index, ExamServices& services, const FileDigest& digest);
  ~BankUpdate();
  BankUpdate(const BankUpdate&) = delete;
  BankUpdate& operator=(const BankUpdate&) = delete;

  /// Works for about `time`, longer only by one exam. False once there is nothing left to do, or after a
  /// problem. While another program writes, a step does nothing; only after a minute this is a problem.
  bool Step(std::chrono::milliseconds time);

  /// All steps. Tells the progress of `services`, in exams, and ends when it is cancelled.
  void Run();

  const BankUpdateReport& Report() const;

 private:
  class Work;

  std::unique_ptr<Work> work_;
  Progress& progress_;
};

/// Reads one exam of the index again if its file has changed since, or removes it if the file is gone: before
/// something of it is shown. Does not wait for other programs that write. False if nothing had changed, or
/// with `problem` set.
bool RefreshExam(BankIndex& index, ExamServices& services, const FileDigest& digest,
                 const std::filesystem::path& exam, BankProblem& problem);

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#pragma once

#include "bank/index/BankIndex.h"
#include "bank/index/BankUpdate.h"
#include "bank/search/BankSearch.h"
#include "bank/search/KeptBankMemory.h"
#include "desktop/controls/BackgroundRun.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

namespace quorvantis {

/// The bank as windows use it: searches and updates the index on other threads, and brings it up to date
/// when something changes in its folders. Begins to work when it is first asked to.
class BankDesk : public QObject {
  Q_OBJECT

 public:
  static constexpr std::size_t kMostHits = 200;  ///< of one search

  /// `services`, those of the program, and `digest` must outlive this.
  BankDesk(BankPlace place, const ExamServices& services, const FileDigest& digest, QObject* parent);
  ~BankDesk() override;

  /// Searches; what comes of an earlier search that has not ended is dropped.
  void Find(const BankQuery& query);

  /// Begins the running search anew, if there is one: it may have read what has changed since.
  void FindAgainIfRunning();

  /// Brings the index up to date, unless that is being done already.
  void Update();
  void CancelUpdate() { update_.Cancel(); }
  bool IsUpdating() const { return update_.IsRunning(); }

  /// What the running update has done.
  struct Done {
    std::size_t exams = 0;
    std::size_t of = 0;  ///< grows while the folders are being listed
  };
  Done UpdateDone() const { return {*examsRead_, *examsToRead_}; }

  const BankHits& Hits() const { return *hits_; }
  const BankPlace& Place() const { return place_; }
  /// What searches remember of the files of tags; for other threads, too.
  const std::shared_ptr<FolderTags>& Tags() const { return tags_; }
  const BankUpdateReport& LastUpdate() const { return *report_; }

  std::vector<std::filesystem::path> Folders() const;
  /// Both are followed by an update.
  BankProblem AddFolder(const std::filesystem::path& folder);
  BankProblem RemoveFolder(const std::filesystem::path& folder);
  /// Empty, with `problem` set, when the index cannot be read.
  std::vector<BankExam> DamagedExams(BankProblem& problem) const;
  /// A question as the index has it; nothing unless its exam is there and as it was then.
  std::optional<BankQuestion> Question(std::int64_t id, const BankExam& exam, int number) const;

  /// For work on another thread, which opens the index for itself. Nothing with `problem` set if that fails.
  std::optional<BankIndex> Opened(BankProblem& problem) const;
  const ExamServices& Services() const { return services_; }
  const FileDigest& Digest() const { return digest_; }
  /// What is remembered of the bank, for a job that begins now; it is forgotten when nobody has asked for a
  /// while.
  KeptBankMemory& UseMemory();

 signals:
  void Found();
  void Updated();
  /// An update has begun or ended.
  void UpdateChanged();

 private:
  BankProblem Change(const std::function<BankProblem(BankIndex&)>& change);
  void Watch(const std::vector<std::filesystem::path>& folders);

  BankPlace place_;
  const ExamServices& services_;
  const FileDigest& digest_;
  const std::shared_ptr<FolderTags> tags_;
  BankQuery query_;  ///< of the last search
  KeptBankMemory memory_;
  QTimer whenUnused_;  ///< runs from the last use of the memory on
  BackgroundRun search_;
  BackgroundRun update_;
  std::shared_ptr<std::atomic_size_t> examsRead_ = std::make_shared<std::atomic_size_t>(0);
  std::shared_ptr<std::atomic_size_t> examsToRead_ = std::make_shared<std::atomic_size_t>(0);
  std::shared_ptr<const BankHits> hits_ = std::make_shared<BankHits>();
  std::shared_ptr<const BankUpdateReport> report_ = std::make_shared<BankUpdateReport>();
  QFileSystemWatcher watcher_;
  QTimer whenQuiet_;          ///< runs from a change in the folders on
  bool isUpdateDue_ = false;  ///< something has changed since the running update began
};

}  // namespace quorvantis

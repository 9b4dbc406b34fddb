// SPDX-License-Identifier: MIT
#include "bank/index/BankUpdate.h"

#include "bank/index/BankFolders.h"
#include "bank/index/FolderScan.h"
#include "bank/index/IndexWriter.h"
#include "model/document/ExamServices.h"
#include "platform/Progress.h"

#include <algorithm>
#include <optional>
#include <string>

namespace quorvantis {
namespace fs = std::filesystem;
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t kEntriesAtOnce = 16;  // on a slow network each may take a moment
constexpr int kStepPatience = 100;          // milliseconds
constexpr std::chrono::seconds kBusyAtMost{60};

}  // namespace

/// An update under way: first lists the folders, then reads the exams, then removes those that are gone.
class BankUpdate::Work {
 public:
  Work(BankIndex& index, ExamServices& services, const FileDigest& digest)
      : index_(index), services_(services), digest_(digest), roots_(index.Folders()), scan_(roots_) {}

  bool Step(std::chrono::milliseconds time) {
    const Clock::time_point end = Clock::now() + time;
    while (phase_ != Phase::Done) {
      if (services_.progress.IsCancelled()) {
        report_.isCancelled = true;
        phase_ = Phase::Done;
      } else if (!Advance()) {
        return true;
      }
      if (Clock::now() >= end) break;
    }
    return phase_ != Phase::Done;
  }

  const BankUpdateReport& Report() const { return report_; }

 private:
  enum class Phase { List, Read, Remove, Done };

  /// One small part of the work. False if another program keeps the index.
  bool Advance() {
    try {
      index_.Data().WaitAtMost(kStepPatience);
      AdvancePhase();
      busySince_.reset();
    } catch (const DatabaseError& error) {
      const bool isBusy = ProblemOf(error, {}).trouble == BankTrouble::Busy;
      if (isBusy && !busySince_) busySince_ = Clock::now();
      if (isBusy && Clock::now() - *busySince_ < kBusyAtMost) return Patient(false);
      writer_.reset();
      report_.problem = index_.ProblemAfter(error);
      phase_ = Phase::Done;
    }
    return Patient(true);
  }

  /// The index as others use it.
  bool Patient(bool result) {
    index_.Data().WaitAtMost(BankIndex::kPatience);
    return result;
  }

  void AdvancePhase() {
    if (!writer_) writer_.emplace(index_, services_, digest_);
    switch (phase_) {
      case Phase::List:
        return List();
      case Phase::Read:
        return ReadNext();
      case Phase::Remove:
        return RemoveNext();
      case Phase::Done:
        break;
    }
  }

  void List() {
    const bool goesOn = scan_.Step(kEntriesAtOnce);
    report_.filesSeen = scan_.FilesSeen();
    report_.examsFound = scan_.Exams().size();
    if (goesOn) return;
    report_.areAllFound = true;
    report_.unreadableFolders = scan_.Unreadable();
    phase_ = Phase::Read;
  }

  void ReadNext() {
    if (report_.examsDone == scan_.Exams().size()) {
      FindGone();
      phase_ = Phase::Remove;
      return;
    }
    switch (writer_->Update(scan_.Exams()[report_.examsDone])) {
      case IndexWriter::Outcome::Unchanged:
        break;
      case IndexWriter::Outcome::Added:
        ++report_.added;
        break;
      case IndexWriter::Outcome::Changed:
        ++report_.changed;
        break;
      case IndexWriter::Outcome::Gone:
        ++report_.removed;
        break;
    }
    ++report_.examsDone;
  }

  /// An exam that was not found is gone, unless its folder could not be looked into.
  bool IsGone(const fs::path& exam) const {
    const auto holds = [&exam](const fs::path& folder) { return LiesIn(exam, folder); };
    if (scan_.HasFound(exam)) return false;
    if (std::none_of(roots_.begin(), roots_.end(), holds)) return true;
    return std::none_of(scan_.Unreadable().begin(), scan_.Unreadable().end(), holds);
  }

  void FindGone() {
    Statement rows = index_.Data().Prepare("SELECT path FROM exam");
    while (rows.Step()) {
      const fs::path exam = std::string(rows.Bytes(0));
      if (IsGone(exam)) gone_.push_back(exam);
    }
  }

  void RemoveNext() {
    if (gone_.empty()) {
      phase_ = Phase::Done;
      return;
    }
    if (writer_->Remove(gone_.back())) ++report_.removed;
    gone_.pop_back();
  }

  BankIndex& index_;
  ExamServices& services_;
  const FileDigest& digest_;
  std::vector<fs::path> roots_;
  FolderScan scan_;
  std::optional<IndexWriter> writer_;
  Phase phase_ = Phase::List;
  std::vector<fs::path> gone_;
  std::optional<Clock::time_point> busySince_;
  BankUpdateReport report_;
};

BankUpdate::BankUpdate(BankIndex& index, ExamServices& services, const FileDigest& digest)
    : work_(std::make_unique<Work>(index, services, digest)), progress_(services.progress) {}

BankUpdate::~BankUpdate() = default;

bool BankUpdate::Step(std::chrono::milliseconds time) {
  return work_->Step(time);
}

void BankUpdate::Run() {
  constexpr std::chrono::milliseconds kSlice{100};
  while (Step(kSlice)) progress_.Report(Report().examsDone, Report().examsFound);
}

const BankUpdateReport& BankUpdate::Report() const {
  return work_->Report();
}

bool RefreshExam(BankIndex& index, ExamServices& services, const FileDigest& digest, const fs::path& exam,
                 BankProblem& problem) {
  bool hasChanged = false;
  index.Data().WaitAtMost(kStepPatience);
  try {
    hasChanged = IndexWriter(index, services, digest).Update(exam) != IndexWriter::Outcome::Unchanged;
  } catch (const DatabaseError& error) {
    problem = index.ProblemAfter(error);
  }
  index.Data().WaitAtMost(BankIndex::kPatience);
  return hasChanged;
}

}  // namespace quorvantis

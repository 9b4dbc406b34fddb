// SPDX-License-Identifier: MIT
#include "desktop/bank/desk/BankDesk.h"

#include "bank/index/BankFolders.h"
#include "bank/search/BankQuestions.h"
#include "bank/search/UnchangedExams.h"
#include "desktop/controls/QtText.h"
#include "model/document/ServicesWith.h"
#include "platform/QuietProgress.h"

#include <chrono>
#include <set>
#include <utility>

namespace quorvantis {
namespace {

constexpr int kQuietFolders = 1'500;  // milliseconds without a change
constexpr std::chrono::minutes kMemoryUnused(3);
constexpr auto kSlice = std::chrono::milliseconds(50);  // between two reports of an update
constexpr std::size_t kMostWatched = 4'000;             // folders; the system has a limit of its own

/// The folders of the bank and those that hold its exams, with all between them: a new folder shows in the
/// one that it is in.
std::vector<std::filesystem::path> FoldersToWatch(const BankIndex& index) {
  std::set<std::filesystem::path> folders;
  BankProblem ignored;
  const auto roots = index.Folders();
  folders.insert(roots.begin(), roots.end());
  for (const BankExam& exam : index.Exams(ignored)) {
    for (auto folder = exam.path.parent_path(); folder.has_relative_path(); folder = folder.parent_path()) {
      if (!folders.insert(folder).second) break;
    }
  }
  return {folders.begin(), folders.end()};
}

}  // namespace

BankDesk::BankDesk(BankPlace place, const ExamServices& services, const FileDigest& digest, QObject* parent)
    : QObject(parent),
      place_(std::move(place)),
      services_(services),
      digest_(digest),
      tags_(std::make_shared<FolderTags>(services.files)),
      search_(nullptr),
      update_(nullptr) {
  whenQuiet_.setSingleShot(true);
  whenQuiet_.setInterval(kQuietFolders);
  whenUnused_.setSingleShot(true);
  whenUnused_.setInterval(kMemoryUnused);
  connect(&whenUnused_, &QTimer::timeout, this, [this] { memory_.Forget(); });
  connect(&whenQuiet_, &QTimer::timeout, this, &BankDesk::Update);
  connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, [this] { whenQuiet_.start(); });
  connect(&update_, &BackgroundRun::Changed, this, &BankDesk::UpdateChanged);
}

BankDesk::~BankDesk() {
  search_.disconnect(this);
  update_.disconnect(this);
}

std::optional<BankIndex> BankDesk::Opened(BankProblem& problem) const {
  return BankIndex::Open(place_, services_.files, problem);
}

void BankDesk::FindAgainIfRunning() {
  if (search_.IsRunning()) Find(BankQuery(query_));
}

void BankDesk::Find(const BankQuery& query) {
  query_ = query;
  search_.Start([this, query](const BackgroundRun::Cancelled& isCancelled) -> BackgroundRun::Finish {
    auto hits = std::make_shared<BankHits>();
    bool isEmptied = false;
    QuietProgress progress(isCancelled);
    ExamServices services = ServicesWith(services_, progress);
    if (auto index = Opened(hits->problem)) {
      isEmptied = index->Found() != IndexFound::Whole;
      *hits = BankSearch(*index, services, digest_, tags_).Find(query, kMostHits);
    }
    return [this, hits, isEmptied] {
      hits_ = hits;
      emit Found();
      if (isEmptied || hits->problem.trouble == BankTrouble::Damaged) Update();
    };
  });
}

void BankDesk::Update() {
  if (update_.IsRunning()) {
    isUpdateDue_ = true;
    return;
  }
  isUpdateDue_ = false;
  *examsRead_ = 0;
  *examsToRead_ = 0;
  const auto job = [this, read = examsRead_, toRead = examsToRead_](
                       const BackgroundRun::Cancelled& isCancelled) -> BackgroundRun::Finish {
    auto report = std::make_shared<BankUpdateReport>();
    auto folders = std::make_shared<std::vector<std::filesystem::path>>();
    QuietProgress progress(isCancelled);
    ExamServices services = ServicesWith(services_, progress);
    if (auto index = Opened(report->problem)) {
      BankUpdate update(*index, services, digest_);
      while (update.Step(kSlice)) {
        *read = update.Report().examsDone;
        *toRead = update.Report().examsFound;
      }
      *report = update.Report();
      *folders = FoldersToWatch(*index);
    }
    return [this, report, folders] {
      report_ = report;
      Watch(*folders);
      emit Updated();
      if (isUpdateDue_) whenQuiet_.start();
    };
  };
  update_.Start(job);
}

void BankDesk::Watch(const std::vector<std::filesystem::path>& folders) {
  QStringList paths;
  for (const auto& folder : folders) {
    if (static_cast<std::size_t>(paths.size()) == kMostWatched) break;
    paths.append(PathToQString(folder));
  }
  if (!watcher_.directories().isEmpty()) watcher_.removePaths(watcher_.directories());
  if (!paths.isEmpty()) watcher_.addPaths(paths);
}

std::vector<std::filesystem::path> BankDesk::Folders() const {
  return ReadBankFolders(place_.folders);
}

BankProblem BankDesk::Change(const std::function<BankProblem(BankIndex&)>& change) {
  BankProblem problem;
  auto index = Opened(problem);
  if (index) problem = change(*index);
  if (!problem.IsAnything()) Update();
  return problem;
}

BankProblem BankDesk::AddFolder(const std::filesystem::path& folder) {
  return Change([&folder](BankIndex& index) { return index.AddFolder(folder); });
}

BankProblem BankDesk::RemoveFolder(const std::filesystem::path& folder) {
  return Change([&folder](BankIndex& index) {
    bool wasThere = false;
    return index.RemoveFolder(folder, wasThere);
  });
}

std::vector<BankExam> BankDesk::DamagedExams(BankProblem& problem) const {
  const auto index = Opened(problem);
  return index ? index->DamagedExams(problem) : std::vector<BankExam>();
}

std::optional<BankQuestion> BankDesk::Question(std::int64_t id, const BankExam& exam, int number) const {
  BankProblem problem;
  auto index = Opened(problem);
  if (!index) return std::nullopt;
  try {
    auto question = BankQuestions(*index).Read(id);
    const bool isSame = question && question->exam.path == exam.path && question->number == number;
    if (isSame && UnchangedExams(*index, digest_).Has(question->exam)) return question;
  } catch (const DatabaseError& error) {
    index->ProblemAfter(error);
  }
  return std::nullopt;
}

KeptBankMemory& BankDesk::UseMemory() {
  whenUnused_.start();
  return memory_;
}

}  // namespace quorvantis

// SPDX-License-Identifier: MIT
#include "desktop/bank/tags/BankTagDesk.h"

#include "bank/search/TagSubjects.h"

#include <utility>

namespace quorvantis {
namespace {

constexpr std::size_t kMostSteps = 100;  // that can be taken back

std::vector<TagsNow> TagsAfter(const TagStep& step, FolderTags& tags) {
  std::vector<TagsNow> now;
  for (const FolderChange& folder : step) {
    const auto ofFolder = tags.Of(folder.folder);
    for (const TagChange& change : folder.changes)
      now.push_back({folder.folder, change.key, ofFolder->Of(change.key)});
  }
  return now;
}

}  // namespace

BankTagDesk::BankTagDesk(BankPlace place, Files& files, std::shared_ptr<FolderTags> tags, QObject* parent)
    : QObject(parent),
      place_(std::move(place)),
      files_(files),
      tags_(std::move(tags)),
      reads_(nullptr),
      writes_(nullptr) {}

BankTagDesk::~BankTagDesk() = default;

/// `wanted` runs on the thread that writes, which alone knows what there is to take back.
void BankTagDesk::Make(std::function<TagStep(Steps& undo)> wanted, bool isUndo) {
  writes_.Add([this, wanted = std::move(wanted), isUndo, undo = undo_, tags = tags_]() -> WorkQueue::Finish {
    const TagStep step = wanted(*undo);
    auto result = std::make_shared<TagStepResult>(MakeTagStep(step, files_));
    if (!isUndo && !result->undo.empty()) undo->push_back(result->undo);
    if (undo->size() > kMostSteps) undo->erase(undo->begin());
    return [this, result, now = TagsAfter(step, *tags), last = undo->empty() ? TagStep() : undo->back()] {
      End(*result, now, last);
    };
  });
}

void BankTagDesk::End(const TagStepResult& result, std::vector<TagsNow> now, const TagStep& lastUndo) {
  lastUndo_ = lastUndo;
  failed_.insert(failed_.end(), result.failed.begin(), result.failed.end());
  now_.insert(now_.end(), std::make_move_iterator(now.begin()), std::make_move_iterator(now.end()));
  if (!writes_.IsIdle()) return;
  emit Written(std::exchange(now_, {}));
  LookForKnown();
}

void BankTagDesk::Change(const std::vector<BankQuestion>& questions, const std::vector<std::u16string>& add,
                         const std::vector<std::u16string>& remove) {
  keptAside_.clear();
  Make([=](Steps&) { return StepFor(questions, add, remove); }, false);
}

void BankTagDesk::UndoLast() {
  const auto takeLast = [](Steps& undo) {
    TagStep last;
    if (undo.empty()) return last;
    last = std::move(undo.back());
    undo.pop_back();
    return last;
  };
  Make(takeLast, true);
}

/// The failed changes as a step. It may name a folder twice, in the order in which its changes were wanted.
TagStep BankTagDesk::TakeFailed() {
  TagStep step;
  step.reserve(failed_.size());
  for (FailedChange& failed : failed_) step.push_back(std::move(failed.change));
  failed_.clear();
  return step;
}

void BankTagDesk::TryAgain() {
  keptAside_.clear();
  Make([step = TakeFailed()](Steps&) { return step; }, false);
}

void BankTagDesk::KeepAsideAndTryAgain() {
  keptAside_.clear();
  std::vector<std::filesystem::path> folders;
  for (const FailedChange& failed : failed_) {
    if (failed.result.outcome == TagOutcome::Damaged) folders.push_back(failed.change.folder);
  }
  writes_.Add([this, folders]() -> WorkQueue::Finish {
    std::vector<std::filesystem::path> kept;
    for (const std::filesystem::path& folder : folders) {
      std::filesystem::path aside;
      TagFile(folder, files_).KeepAside(aside);
      if (!aside.empty()) kept.push_back(aside);
    }
    return [this, kept] { keptAside_ = kept; };
  });
  Make([step = TakeFailed()](Steps&) { return step; }, false);
}

void BankTagDesk::ForgetFailed() {
  failed_.clear();
  keptAside_.clear();
}

void BankTagDesk::ForgetEarlier() {
  ++*looks_;
  earlier_.clear();
}

void BankTagDesk::LookForEarlier(const BankQuestion& question) {
  earlier_.clear();
  reads_.Add([this, question, tags = tags_, looks = looks_, look = ++*looks_]() -> WorkQueue::Finish {
    if (*looks != look) return nullptr;
    const auto ofFolder = tags->Of(question.exam.path.parent_path());
    return [this, earlier = EarlierTags(question, *ofFolder), look] {
      if (*looks_ != look) return;
      earlier_ = earlier;
      emit EarlierFound();
    };
  });
}

void BankTagDesk::LookForKnown() {
  isKnownWanted_ = isReadingKnown_;
  if (std::exchange(isReadingKnown_, true)) return;
  reads_.Add([this, tags = tags_]() -> WorkQueue::Finish {
    BankProblem problem;
    const auto index = BankIndex::Open(place_, files_, problem);
    return [this, known = index ? KnownTags(*index, *tags) : std::vector<std::u16string>()] {
      known_ = known;
      isReadingKnown_ = false;
      emit KnownFound();
      if (isKnownWanted_) LookForKnown();
    };
  });
}

}  // namespace quorvantis
